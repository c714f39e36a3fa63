// SPDX-License-Identifier: MIT
// TextAttributes describes a run of styled text: font, paragraph style, language, attachment. It only names
// fonts; finding and loading them is left to the layout.
// Thread: any; values.
#pragma once

#include <QByteArray>
#include <QHashFunctions>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

enum class FontSlant { Upright, Italic, Oblique };

inline constexpr int regularFontWeight = 400;
inline constexpr int boldFontWeight = 700;

struct FontAttributes {
    QString family; ///< the name in the document; the layout finds an installed font for it
    double pointSize = 12;
    int weight = regularFontWeight; ///< 1 to 1000 (OpenType usWeightClass)
    FontSlant slant = FontSlant::Upright;
    double tracking = 0; ///< points added after every grapheme cluster
    double baselineOffset = 0; ///< points above (positive) or below the baseline

    bool operator==(const FontAttributes &) const = default;
};

enum class TextAlignment { Natural, Left, Right, Center, Justified };
enum class WritingDirection { Natural, LeftToRight, RightToLeft };
enum class TabAlignment { Left, Center, Right, Decimal };

struct TabStop {
    double position = 0; ///< points from the leading edge of the column
    TabAlignment alignment = TabAlignment::Left;

    bool operator==(const TabStop &) const = default;
};

/// All lengths are points. Leading is left in left-to-right paragraphs and right in right-to-left ones.
struct ParagraphStyle {
    TextAlignment alignment = TextAlignment::Natural;
    WritingDirection direction = WritingDirection::Natural;
    double firstLineHeadIndent = 0; ///< of the first line, from the leading edge
    double headIndent = 0; ///< of every other line, from the leading edge
    double tailIndent = 0; ///< of every line, from the trailing edge inwards
    std::vector<TabStop> tabStops; ///< ascending by position
    double defaultTabInterval = 28; ///< distance between the stops after the last explicit one
    double lineSpacing = 0; ///< between the lines of the paragraph
    double paragraphSpacingBefore = 0;
    double paragraphSpacing = 0; ///< after the paragraph

    bool operator==(const ParagraphStyle &) const = default;
};

/// A file that the text contains as one U+FFFC.
struct Attachment {
    QString fileName; ///< without a path
    QByteArray contents;

    bool operator==(const Attachment &) const = default;
};

struct TextAttributes {
    std::optional<FontAttributes> font; ///< absent if the text names none
    ParagraphStyle paragraphStyle;
    QString language; ///< BCP 47; empty if the text names none
    std::shared_ptr<const Attachment> attachment; ///< shared by copies; null for ordinary text

    /// Attachments are compared by file name and contents.
    bool operator==(const TextAttributes &other) const;
};

size_t qHash(const FontAttributes &font, size_t seed = 0);
size_t qHash(const ParagraphStyle &style, size_t seed = 0);
size_t qHash(const TextAttributes &attributes, size_t seed = 0);
