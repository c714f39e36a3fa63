// SPDX-License-Identifier: MIT
// RtfFontTable holds the font table of a document: the family and the code page of each font number.
// Thread: one.  Owner: RtfInterpreter.
#pragma once

#include "documents/rtf/RtfCodePage.h"

#include <QByteArrayView>
#include <QHash>
#include <QString>

class RtfDecoder;

class RtfFontTable {
public:
    /// Starts a font. A font replaces an earlier one with its number. depth: the nesting depth of its group.
    void beginFont(qint32 number, size_t depth);
    void setCharset(qint32 charset);
    void setCodePage(qint32 number);

    /// Appends to the name. A semicolon ends the font; blanks at either end are dropped.
    void appendName(QByteArrayView bytes, const RtfCodePage *documentPage, RtfDecoder &decoder);
    /// Appends to the name as it is.
    void appendName(QStringView characters, RtfDecoder &decoder);
    void appendNameByte(char byte, const RtfCodePage *documentPage, RtfDecoder &decoder);
    /// Appends bytes that the decoder has held back.
    void finishName(RtfDecoder &decoder);

    /// Ends the font if its group ends. depth: the nesting depth of the group that ends.
    void endGroup(size_t depth, RtfDecoder &decoder);

    /// Empty if there is no such font.
    [[nodiscard]] QString family(qint32 number) const { return m_fonts.value(number).family; }
    /// Null if it is the page of the document.
    [[nodiscard]] const RtfCodePage *page(qint32 number) const { return m_fonts.value(number).page; }
    /// Increases with each font.
    [[nodiscard]] quint32 version() const { return m_version; }

private:
    struct Font {
        QString family;
        const RtfCodePage *page = nullptr;
    };
    void appendPiece(QByteArrayView bytes, const RtfCodePage *documentPage, RtfDecoder &decoder);
    [[nodiscard]] const RtfCodePage *namePage(const RtfCodePage *documentPage) const;
    void endFont(RtfDecoder &decoder);

    QHash<qint32, Font> m_fonts;
    quint32 m_version = 0;

    bool m_isOpen = false;
    qint32 m_number = 0;
    size_t m_depth = 0;
    Font m_font;
    qsizetype m_trailingBlanks = 0; ///< of the family, without escaped blanks
};
