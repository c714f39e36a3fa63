// SPDX-License-Identifier: MIT
// PageSizeForMeasuringPreviewViewController shows a white page with a column of text between its margins,
// shrunk to fit its scroll view. On a screen it is a preview of the page; off screen, MeasuringSurface counts
// lines in its text view.
// Thread: main.  Owner: the code that shows the page or measures on it; shares ownership of text view and
// layout engine.
#pragma once

#include "common_views/FlippedView.h"
#include "common_views/QBYScrollView.h"
#include "platform/views/ViewController.h"
#include "text_statistics/TextView.h"

#include <QPointer>

#include <optional>

/// The text of the column: a line end, then four equal paragraphs of placeholder text with a line end between
/// each and the next; 1,784 UTF-16 code units.
QString pagePreviewSampleText();

/// The scroll view is the controller's view, the page is its document, and the text view lies on the page.
class PageSizeForMeasuringPreviewViewController : public ViewController {
public:
    /// engine: lays the column out; not null; may be shared within the thread.
    explicit PageSizeForMeasuringPreviewViewController(std::shared_ptr<LayoutEngine> engine);

    /// Null before loadView().
    [[nodiscard]] const std::shared_ptr<TextView> &previewTextView() const { return m_previewTextView; }
    /// The page; null before loadView() and after the scroll view has been given another document.
    [[nodiscard]] FlippedView *wrapperView() const { return m_wrapperView; }
    /// Null before loadView() and when the controller has been given another view.
    [[nodiscard]] QBYScrollView *mainScrollView() const { return m_mainScrollView; }

    /// Creates the missing ones of the three views, puts the text view on top of the page and scrolls to the
    /// top of the page.
    void loadView() override;

    /// Points; absent if the insets leave no width for the column.
    static std::optional<double> columnWidth(const QSizeF &size, double leftInset, double rightInset);

    /// Points. Resizes the page, sets the column between the insets, and shrinks the page to fit; the column
    /// keeps its height. Does nothing if the insets leave no width for the column.
    void setPreviewContentFrameSize(const QSizeF &size, double leftInset, double rightInset);

    /// Points: the scroll view's width minus the page's width as shown.
    [[nodiscard]] double embeddedTextViewOffsetMagnifiedWidth() const;

    /// "8.5 x 11.0 inches" for a page of 612 by 792 points, "0.0 x 0.0 inches" before the first layout.
    [[nodiscard]] QString formattedPageSizeInInches() const;

private:
    [[nodiscard]] QSizeF pageSize() const;

    std::shared_ptr<LayoutEngine> m_engine;
    std::shared_ptr<TextView> m_previewTextView;
    QPointer<FlippedView> m_wrapperView;
    QPointer<QBYScrollView> m_mainScrollView;
};
