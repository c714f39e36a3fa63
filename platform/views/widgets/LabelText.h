// SPDX-License-Identifier: MIT
// Texts on widgets: how large a label's text is, and texts of the user, such as file names, in places where
// Qt interprets markup or placeholders. Labels and message boxes have Qt::PlainText; these places do not.
// Thread: any; LabelTextMeasurer main only.  Owner: a measurer is shared by the labels of a window.
#pragma once

#include "platform/views/Controls.h"

#include <QFont>
#include <QFontMetricsF>
#include <QString>

class QWidget;

/// Measures in the font in which the user's desktop shows labels. Keeps the font that it was made with: when
/// the user chooses another font, labels get another measurer.
class LabelTextMeasurer : public TextMeasurer {
public:
    /// For labels in that window; the size of a font depends on the window's screen.
    explicit LabelTextMeasurer(const QWidget &window);

    /// Rounded up to whole points: a label of this size shows the whole text wherever its frame begins, even
    /// between two pixels. The height is that of the font, or more if a character needs a taller font.
    [[nodiscard]] QSizeF labelSize(const QString &text) const override;
    /// In the font and style of buttons, rounded up to whole points.
    [[nodiscard]] QSizeF buttonSize(const QString &title) const override;

    /// Whether both measure every text the same.
    [[nodiscard]] bool measuresLike(const LabelTextMeasurer &other) const;

private:
    QFont m_font;
    QFontMetricsF m_metrics;
    double m_scale;
};

/// For tooltips of widgets and of the tray. Text that Qt would take for markup gets an invisible word joiner
/// (U+2060) after each '<' and '&'; all other text stays unchanged. Unlike escaped text it is readable where
/// the desktop, not Qt, shows the tooltip.
QString plainToolTip(const QString &text);

/// For QWidget::setWindowTitle(), which removes "[*]".
QString plainWindowTitle(const QString &title);
