// SPDX-License-Identifier: MIT
// TextFormat is the format of characters that a style of an OpenDocument text sets (style:text-properties),
// as far as text and layout need it; absent values are left to other levels.
// Thread: any; values.
#pragma once

#include "documents/odt/OdfNames.h"
#include "documents/package/ScriptFormats.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <optional>

/// The families of the declared fonts, by their names (style:font-face).
using FontFaces = QHash<QByteArray, QString>;

/// The first family in a list such as "'Liberation Serif', serif", truncated to the maximum length on any
/// system.
QString familyOf(QByteArrayView list);

struct TextFormat {
    /// What Latin, East Asian and complex scripts each have of their own.
    struct Script {
        QString family; ///< empty if not set
        std::optional<double> size; ///< points
        double sizeFactor = 1; ///< of the inherited size, if size is not set
        std::optional<bool> isBold;
        std::optional<bool> isItalic;
        QString language; ///< ISO 639; empty if not set
        QString country; ///< ISO 3166

        void overlay(const Script &other);
    };

    Script latin;
    Script asian;
    Script complex;
    std::optional<bool> isHidden;
    std::optional<double> tracking; ///< points
    struct Position {
        double rise; ///< above the baseline, in font sizes
        double scale; ///< of the size
    };
    std::optional<Position> position;

    /// Sets the values of an element style:text-properties.
    void read(const XmlElement &properties, const FontFaces &faces);

    /// Replaces the values that the other format sets.
    void overlay(const TextFormat &other);

    /// With defaults for values that no level sets.
    [[nodiscard]] ScriptFormats scriptFormats() const;
};
