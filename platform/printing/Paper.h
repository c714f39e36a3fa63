// SPDX-License-Identifier: MIT
// Paper is one sheet size that a printer takes, with the margins it cannot print on.
// Thread: any; a value.
#pragma once

#include <QSizeF>
#include <QString>

#include <cmath>
#include <optional>

constexpr double pointsPerMillimetre = 72 / 25.4;

/// Points (1/72 inch).
struct PaperMargins {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;

    bool operator==(const PaperMargins &) const = default;
};

struct Paper {
    std::optional<QString>
        ppdName; ///< its name in printer descriptions, such as "Letter"; absent if it has none
    std::optional<QString> identifier; ///< the printing system's own; absent if it has none
    bool isCustom = false;
    QSizeF size; ///< points
    PaperMargins margins;

    bool operator==(const Paper &) const = default;
};

/// Whether a sheet can have that size in points: from nothing to 100,000 (35 metres) a side.
inline bool isPossiblePaperSize(QSizeF size)
{
    constexpr double longestSide = 100'000;
    return size.width() > 0 && size.width() <= longestSide && size.height() > 0
        && size.height() <= longestSide;
}

/// Whether two sizes in points are the same sheet. They may differ by a millimetre: printing systems round to
/// whole points here and to hundredths of a millimetre there.
inline bool isSamePaperSize(QSizeF size, QSizeF other)
{
    return std::abs(size.width() - other.width()) <= pointsPerMillimetre
        && std::abs(size.height() - other.height()) <= pointsPerMillimetre;
}
