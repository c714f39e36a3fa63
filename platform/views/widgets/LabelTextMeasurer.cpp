// SPDX-License-Identifier: MIT
#include "platform/views/widgets/LabelTextMeasurer.h"

#include <QApplication>
#include <QWidget>

#include <algorithm>
#include <cmath>

LabelTextMeasurer::LabelTextMeasurer(const QWidget &window)
    : m_font(QApplication::font("QLabel"))
    , m_metrics(m_font, &window)
    , m_scale(window.devicePixelRatioF())
{
}

QSizeF LabelTextMeasurer::labelSize(const QString &text) const
{
    // A character of another font may be higher than those of this one.
    const QSizeF needed = m_metrics.size(Qt::TextSingleLine, text);
    return {std::ceil(needed.width()), std::ceil(std::max(needed.height(), m_metrics.height()))};
}

bool LabelTextMeasurer::measuresAs(const LabelTextMeasurer &other) const
{
    return m_font == other.m_font && m_metrics == other.m_metrics && m_scale == other.m_scale;
}
