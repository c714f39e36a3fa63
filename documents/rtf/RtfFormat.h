// SPDX-License-Identifier: MIT
// RtfFormat is the format of the text in a group, to which control words are applied one by one. Resolving
// font numbers is left to RtfFontTable, attributes to RtfFlow.
// Thread: one.
#pragma once

#include "documents/Lengths.h"
#include "documents/rtf/RtfWords.h"
#include "platform/styled_text/TextAttributes.h"

#include <QSharedData>
#include <QString>

#include <optional>

/// In a paragraph; further stops are ignored. Word processors accept 64.
inline constexpr size_t maxTabStops = 256;

struct RtfCharacterFormat {
    static constexpr qint32 noFont = -1;

    bool namesFont = false; ///< whether any font word has been applied
    bool isHidden = false;
    bool isDeleted = false;
    qint8 script = 0; ///< 1 superscript, -1 subscript
    qint32 fontNumber = noFont;
    int weight = regularFontWeight;
    FontSlant slant = FontSlant::Upright;
    double pointSize = 12; ///< the default of RTF
    double tracking = 0;
    double baselineOffset = 0; ///< without that of the script
    QString language;

    [[nodiscard]] bool isText() const { return !isHidden && !isDeleted; }
    /// family: of the font number.
    [[nodiscard]] std::optional<FontAttributes> font(const QString &family) const;
    /// Replaces everything but font number, language and visibility.
    void apply(const FontAttributes &exact);
    bool operator==(const RtfCharacterFormat &) const = default;
};

struct RtfParagraphFormat : QSharedData {
    RtfParagraphFormat() { style.defaultTabInterval = defaultTabInterval; }

    static constexpr double defaultTabInterval = 36; ///< points; the default of \deftab

    ParagraphStyle style;
    double headIndent = 0; ///< twips
    double firstLineIndent = 0; ///< twips, relative to the head indent
    TabAlignment nextTabAlignment = TabAlignment::Left;

    void apply(const ParagraphStyle &exact);
};

/// Copies share the paragraph format until one of them changes it.
struct RtfFormat {
    RtfCharacterFormat character;
    QSharedDataPointer<RtfParagraphFormat> paragraph{new RtfParagraphFormat};

    /// Whether text in both formats has equal attributes.
    [[nodiscard]] bool hasSameAttributes(const RtfFormat &other) const;
};

/// Applies a word on characters; ignores any other word. Parameters are those of RTF 1.9.1, and of \fsmilli,
/// a size in thousandths of a point.
void applyCharacterWord(const RtfWord &word, std::optional<qint32> parameter, RtfCharacterFormat &format);

/// Applies a word on paragraphs; ignores any other word.
void applyParagraphWord(const RtfWord &word, std::optional<qint32> parameter, RtfParagraphFormat &format);
