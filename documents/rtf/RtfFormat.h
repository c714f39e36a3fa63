// SPDX-License-Identifier: MIT
// RtfFormat is how the text of a group looks, as control words say it one by one. What a font's number means
// is left to RtfFontTable, what becomes of it to RtfFlow. Thread: one.
#pragma once

#include "documents/rtf/RtfWords.h"
#include "platform/styled_text/TextAttributes.h"

#include <QSharedData>
#include <QString>

#include <optional>

/// Of a paragraph; further ones are passed over. Word processors stop at 64.
inline constexpr size_t mostTabStops = 256;

inline constexpr double twipsPerPoint = 20;

struct RtfCharacterFormat {
    static constexpr qint32 noFont = -1;

    bool namesFont = false; ///< by any of the words on fonts
    bool isHidden = false;
    bool isDeleted = false;
    qint8 script = 0; ///< 1 superscript, -1 subscript
    qint32 fontNumber = noFont;
    int weight = 400;
    FontSlant slant = FontSlant::Upright;
    double pointSize = 12; ///< of RTF, where nothing is said
    double tracking = 0;
    double baselineOffset = 0; ///< but for the script's
    QString language;

    [[nodiscard]] bool isText() const { return !isHidden && !isDeleted; }
    /// The family is the one of the font's number.
    [[nodiscard]] std::optional<FontAttributes> font(const QString &family) const;
    void choose(const FontAttributes &font);
    bool operator==(const RtfCharacterFormat &) const = default;
};

struct RtfParagraphFormat : QSharedData {
    RtfParagraphFormat() { style.defaultTabInterval = tabIntervalWithoutWord; }

    static constexpr double tabIntervalWithoutWord = 36; // of \deftab in RTF: points

    ParagraphStyle style;
    double headIndent = 0; ///< twips, as the next; their sum is rounded once
    double firstLineIndent = 0; ///< from the head indent
    TabAlignment nextTabAlignment = TabAlignment::Left;

    void choose(const ParagraphStyle &exact);
};

/// Copies share the paragraph's until one changes it.
struct RtfFormat {
    RtfCharacterFormat character;
    QSharedDataPointer<RtfParagraphFormat> paragraph{new RtfParagraphFormat};

    /// Whether text of both has equal attributes.
    [[nodiscard]] bool looksLike(const RtfFormat &other) const;
};

/// A word on characters; any other does nothing. Parameters are as RTF 1.9.1 has them, and \fsmilli, which is
/// a size in thousandths of a point.
void applyCharacterWord(const RtfWord &word, std::optional<qint32> parameter, RtfCharacterFormat &format);

/// A word on paragraphs; any other does nothing.
void applyParagraphWord(const RtfWord &word, std::optional<qint32> parameter, RtfParagraphFormat &format);
