// SPDX-License-Identifier: MIT
// PagePreview shows the page on which lines are measured: the paper in its proportions, and a text in the
// column between its margins, broken into the lines that the line count counts; below it the size of the
// paper.
// Thread: main.  Owner: PaperPage, as a Qt child.
#pragma once

#include "text_statistics/CountingRules.h"
#include "text_statistics/PageSizeForMeasuringPreviewViewController.h"

#include <QLabel>
#include <QWidget>

/// The lines, their places and widths are those of the layout. Their letters are drawn by Qt, in a font with
/// the same metrics where there is one, and are stretched to the width of the line.
class PagePreview : public QWidget {
    Q_OBJECT

public:
    explicit PagePreview(QWidget *parent = nullptr);

    /// A page whose margins leave no column is not shown: the former page stays.
    void setPage(const PageRules &page);

    /// Plain text; only as much of it as a page can hold. The sample text until this is called.
    void setText(const QString &text);

    /// The size of the paper, such as "8.5 x 11.0 inches".
    [[nodiscard]] QString sizeText() const { return m_controller.formattedPageSizeInInches(); }

    /// The lines that the page shows, from its top. For tests.
    [[nodiscard]] QStringList visibleLines() const;

    [[nodiscard]] QSize sizeHint() const override { return {320, 420}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {120, 160}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Line {
        QRectF rect; ///< points of the page, from its top left
        QString text; ///< without blanks at its end
    };
    void fitPage();
    [[nodiscard]] QList<Line> linesOfPage() const;
    void placeSizeLabel();
    /// From points of the page to the widget.
    [[nodiscard]] QTransform transformToWidget() const;

    PageSizeForMeasuringPreviewViewController m_controller;
    QLabel *m_sizeLabel; ///< directly below the page
    PageRules m_page;
};
