// SPDX-License-Identifier: MIT
// Paper is one sheet size that a printer takes, with the margins it cannot print on.
// Thread: any; a value.
#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

/// Points (1/72 inch).
struct PaperMargins {
    double top = 0;
    double left = 0;
    double bottom = 0;
    double right = 0;

    bool operator==(const PaperMargins &) const = default;
};

struct Paper {
    std::optional<QString> ppdName; ///< its name in printer descriptions, such as "Letter"; absent if it has none
    std::optional<QString> identifier; ///< the printing system's own; absent if it has none
    bool isCustom = false;
    QSizeF size; ///< points
    PaperMargins margins;

    bool operator==(const Paper &) const = default;
};
