// SPDX-License-Identifier: MIT
// LabelTextMeasurer measures lines of text in the font in which the user's desktop shows labels. It keeps the
// font that it was made for; when the user takes another one, labels get another measurer.
// Thread: main.  Owner: shared by the labels of a window.
#pragma once

#include "platform/views/Controls.h"

#include <QFont>
#include <QFontMetricsF>

class QWidget;

class LabelTextMeasurer : public TextMeasurer {
public:
    /// For labels in that window, on whose screen the size of a font depends.
    explicit LabelTextMeasurer(const QWidget &window);

    /// Whole points, upward: a label of this size shows the whole text wherever its frame begins, also
    /// between two pixels. The height is that of the font, or more
    /// where a character comes from another font that is higher.
    [[nodiscard]] QSizeF labelSize(const QString &text) const override;

    /// Whether every text measures the same with both.
    [[nodiscard]] bool measuresAs(const LabelTextMeasurer &other) const;

private:
    QFont m_font;
    QFontMetricsF m_metrics;
    double m_scale;
};
