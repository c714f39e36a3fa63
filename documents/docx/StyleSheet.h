// SPDX-License-Identifier: MIT
// StyleSheet knows the styles of a document, each with all that it inherits, and the document's defaults.
// Thread: one at a time; it remembers what it has worked out.
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

/// The parts of a table that a style may set apart, lowest rank first.
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

/// Which parts something belongs to: bit 1 << part.
using TableParts = unsigned;

class StyleSheet {
public:
    enum class Kind { Paragraph, Character, Table };

    static Result<StyleSheet, DocumentError::Cause> read(const ZipPackage &package,
        const QByteArray &partName, const Theme &theme, const Numbering &numbering);

    [[nodiscard]] const StyleProperties &defaults() const { return m_defaults; }

    /// A style with what it is based on, at most 50 levels up; the default one of its kind where the
    /// identifier is empty or unknown. Without a style, properties that leave everything open.
    [[nodiscard]] const StyleProperties &style(Kind kind, const QByteArray &identifier) const;

    /// What a table style says of text in these parts of the table.
    [[nodiscard]] const StyleProperties &tableStyle(const QByteArray &identifier, TableParts parts) const;

private:
    friend class StyleSheetReader;
    struct Style {
        Kind kind = Kind::Paragraph;
        QByteArray basedOn;
        StyleProperties own;
        std::map<TablePart, StyleProperties> parts;
    };
    /// The identifier, or that of the default style where it is unknown.
    [[nodiscard]] QByteArray knownIdentifier(Kind kind, const QByteArray &identifier) const;
    [[nodiscard]] StyleProperties resolved(Kind kind, const QByteArray &identifier, TableParts parts) const;
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
    const StyleProperties &remembered(const Key &key) const;
    mutable std::map<Key, StyleProperties> m_resolved; // of known styles only
};
