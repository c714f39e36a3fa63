// SPDX-License-Identifier: MIT
// Styles holds the styles of an OpenDocument text and resolves them, each with everything that it inherits.
// Reading them is left to StylesReader.
// Thread: one at a time; it caches resolved styles.  Owner: readOpenDocument().
#pragma once

#include "documents/odt/TextFormat.h"
#include "documents/package/ParagraphFormat.h"

#include <QByteArray>
#include <QHash>

#include <array>
#include <map>
#include <optional>

/// The format of paragraphs that a style sets (style:paragraph-properties).
struct OdtParagraphFormat : ParagraphFormat {
    std::optional<double> tabInterval; ///< points
    bool hasTabs = false; ///< its tab stops replace all others

    /// Sets the values of an element style:paragraph-properties.
    void read(const XmlElement &properties);
    /// Adds the stop of an element style:tab-stop.
    void readTab(const XmlElement &stop);
    void overlay(const OdtParagraphFormat &other);
};

struct OdtStyle {
    QByteArray parent;
    std::optional<QByteArray> listStyle; ///< empty: in no list
    OdtParagraphFormat paragraph;
    TextFormat text;

    void overlay(const OdtStyle &other);
};

/// How far a level of a list indents its paragraphs.
struct ListLevel {
    std::optional<double> leadingIndent; ///< points
    std::optional<double> firstLineIndent;
    bool addsToParagraph = false; ///< of older documents: the indents are added to those of the paragraph
};

inline constexpr int maxListLevel = 10;
using ListStyle = std::array<ListLevel, maxListLevel>;

class Styles {
public:
    enum class Family { Paragraph, Text };
    static constexpr int familyCount = 2;

    /// A style with everything that it inherits from at most 50 levels, and the default style of its family.
    /// Only the default style if the name is unknown.
    [[nodiscard]] const OdtStyle &style(Family family, const QByteArray &name) const;

    /// The place of a paragraph in a list.
    struct ListPlace {
        QByteArray style; ///< empty outside of lists
        int level = 0; ///< from 1
    };
    /// The format of a paragraph with a style at a place.
    [[nodiscard]] ParagraphStyle paragraphStyle(
        const QByteArray &name, const ListPlace &place, double pointSize) const;

    bool tabsAreRelativeToIndent = true; ///< tab stops are measured from the indent, as LibreOffice does

private:
    friend class StylesReader;
    [[nodiscard]] OdtParagraphFormat paragraphFormat(const QByteArray &name, const ListPlace &place) const;

    using ByName = QHash<QByteArray, OdtStyle>;
    std::array<ByName, familyCount> m_styles;
    std::array<OdtStyle, familyCount> m_defaults;
    QHash<QByteArray, ListStyle> m_listStyles;
    FontFaces m_fontFaces;
    mutable std::array<std::map<QByteArray, OdtStyle>, familyCount> m_cache; // known styles only
};
