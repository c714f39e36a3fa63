// SPDX-License-Identifier: MIT
// LengthUnit is the unit in which the user measures paper: millimetres or inches.
// Thread: main; a value.
#pragma once

#include <QString>

class LengthUnit {
public:
    /// By the default locale of Qt.
    static LengthUnit ofUser();

    [[nodiscard]] double fromInches(double inches) const { return inches * m_perInch; }
    [[nodiscard]] double toInches(double length) const { return length / m_perInch; }

    /// " mm" or " in", to be appended to a number.
    [[nodiscard]] QString suffix() const;
    /// Digits after the decimal point of a margin.
    [[nodiscard]] int decimals() const { return 2; }
    /// By which the arrows change a margin.
    [[nodiscard]] double step() const { return m_isMetric ? 1 : 0.05; }

    /// For people, as "210" and "210 mm". points: 1/72 inch.
    [[nodiscard]] QString numberText(double points) const;
    [[nodiscard]] QString text(double points) const { return numberText(points) + suffix(); }

private:
    explicit LengthUnit(bool isMetric);

    bool m_isMetric;
    double m_perInch;
};
