// SPDX-License-Identifier: MIT
// RtfFontTable is what the font table of a document says: the family and the code page of each number.
// Thread: one.  Owner: the reading of one document.
#pragma once

#include "documents/rtf/RtfCodePage.h"

#include <QByteArrayView>
#include <QHash>
#include <QString>

class RtfDecoder;

class RtfFontTable {
public:
    /// A font begins; `depth` is the nesting of the group that names it. A number that comes again means the
    /// later font.
    void begin(qint32 number, size_t depth);
    void setCharset(qint32 charset);
    void setCodePage(qint32 number);

    /// A piece of the name: a semicolon ends it, blanks at its ends are none of it.
    void appendName(QByteArrayView bytes, const RtfCodePage *documentPage, RtfDecoder &decoder);
    /// A character of the name, whichever.
    void appendName(QStringView characters, RtfDecoder &decoder);
    void appendNameByte(char byte, const RtfCodePage *documentPage, RtfDecoder &decoder);
    /// Bytes that the decoder has kept back.
    void finishName(RtfDecoder &decoder);

    /// A group inside the table, or the table itself, ends, which ends the font that it names.
    void endGroup(size_t depth, RtfDecoder &decoder);

    /// Empty where there is no such font.
    [[nodiscard]] QString family(qint32 number) const { return m_fonts.value(number).family; }
    /// Null where it is the document's own.
    [[nodiscard]] const RtfCodePage *page(qint32 number) const { return m_fonts.value(number).page; }
    /// Grows with each font.
    [[nodiscard]] quint32 version() const { return m_version; }

private:
    struct Font {
        QString family;
        const RtfCodePage *page = nullptr;
    };
    void appendPiece(QByteArrayView bytes, const RtfCodePage *documentPage, RtfDecoder &decoder);
    [[nodiscard]] const RtfCodePage *namePage(const RtfCodePage *documentPage) const;
    void end(RtfDecoder &decoder);

    QHash<qint32, Font> m_fonts;
    quint32 m_version = 0;

    bool m_isOpen = false;
    qint32 m_number = 0;
    size_t m_depth = 0;
    Font m_font;
    qsizetype m_trailingBlanks = 0; ///< of the family, not escaped ones
};
