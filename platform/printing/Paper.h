// SPDX-License-Identifier: MIT
// Paper is a sheet size of a printer, with the margins that it cannot print on.
// Thread: any; a value.
#pragma once

#include <QSizeF>
#include <QString>

#include <cmath>
#include <optional>

constexpr double pointsPerInch = 72;
constexpr double millimetresPerInch = 25.4;
constexpr double pointsPerMillimetre = pointsPerInch / millimetresPerInch;

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
    std::optional<QString> identifier; ///< of the printing system; absent if it has none
    bool isCustom = false;
    QSizeF size; ///< points
    PaperMargins margins;

    bool operator==(const Paper &) const = default;
};

/// Whether a sheet can have this size in points: more than 0 and at most 100,000 (35 metres) per side.
inline bool isPossiblePaperSize(QSizeF size)
{
    constexpr double maxSide = 100'000;
    return size.width() > 0 && size.width() <= maxSide && size.height() > 0 && size.height() <= maxSide;
}

/// Whether two sizes in points are the same sheet. They may differ by a millimetre, because printing systems
/// round either to whole points or to hundredths of a millimetre.
inline bool isSamePaperSize(QSizeF size, QSizeF other)
{
    return std::abs(size.width() - other.width()) <= pointsPerMillimetre
        && std::abs(size.height() - other.height()) <= pointsPerMillimetre;
}
