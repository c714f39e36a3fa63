// SPDX-License-Identifier: MIT
// StyleSheet resolves the styles of a document, each with everything that it inherits, and holds the defaults
// of the document. Combining styles of different kinds is left to StoryAssembler.
// Thread: one at a time; it caches resolved styles.
#pragma once

#include "documents/docx/Numbering.h"
#include "documents/docx/ParagraphProperties.h"
#include "documents/docx/RunProperties.h"
#include "documents/docx/Theme.h"
#include "platform/system/Result.h"

#include <QHash>

#include <map>

struct StyleProperties {
    ParagraphProperties paragraph;
    RunProperties run;

    void overlay(const StyleProperties &other);
};

/// The parts of a table that a style may format, by ascending precedence.
enum class TablePart {
    OddColumns,
    EvenColumns,
    OddRows,
    EvenRows,
    FirstRow,
    LastRow,
    FirstColumn,
    LastColumn,
    FirstRowLastCell,
    FirstRowFirstCell,
    LastRowLastCell,
    LastRowFirstCell,
};
inline constexpr int tablePartCount = 12;

/// A set of table parts: bit 1 << part.
using TableParts = unsigned;

class StyleSheet {
public:
    enum class Kind { Paragraph, Character, Table };

    static Result<StyleSheet, DocumentError::Cause> read(const ZipPackage &package,
        const QByteArray &partName, const Theme &theme, const Numbering &numbering);

    [[nodiscard]] const StyleProperties &defaults() const { return m_defaults; }

    /// A style with everything that it inherits from at most 50 levels; the default style of the kind if the
    /// identifier is empty or unknown. Properties without values if there is no such style.
    [[nodiscard]] const StyleProperties &style(Kind kind, const QByteArray &identifier) const;

    /// The properties that a table style sets for text in some parts of a table.
    [[nodiscard]] const StyleProperties &tableStyle(const QByteArray &identifier, TableParts parts) const;

private:
    friend class StyleSheetReader;
    struct Style {
        Kind kind = Kind::Paragraph;
        QByteArray basedOn;
        StyleProperties own;
        std::map<TablePart, StyleProperties> parts;
    };
    /// The identifier, or that of the default style if it is unknown.
    [[nodiscard]] QByteArray knownIdentifier(Kind kind, const QByteArray &identifier) const;
    [[nodiscard]] StyleProperties resolve(Kind kind, const QByteArray &identifier, TableParts parts) const;
    void applyLists(const Numbering &numbering);

    QHash<QByteArray, Style> m_styles;
    QHash<int, QByteArray> m_defaultStyles; // by Kind
    StyleProperties m_defaults;
    struct Key {
        Kind kind;
        TableParts parts;
        QByteArray identifier;
        bool operator<(const Key &other) const
        {
            if (kind != other.kind)
                return kind < other.kind;
            return parts != other.parts ? parts < other.parts : identifier < other.identifier;
        }
    };
    const StyleProperties &resolvedStyle(const Key &key) const;
    mutable std::map<Key, StyleProperties> m_cache; // known styles only
};
