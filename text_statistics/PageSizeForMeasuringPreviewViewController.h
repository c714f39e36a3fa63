// SPDX-License-Identifier: MIT
// PageSizeForMeasuringPreviewViewController shows a white page with a column of text between its margins,
// shrunk to fit its scroll view. On a screen it is a preview of the page; off screen, its text view measures
// texts in lines.
// Thread: main.  Owner: whoever shows the page, or measures on it; shares the ownership of the text view and
// the layout engine.
#pragma once

#include "common_views/FlippedView.h"
#include "common_views/QBYScrollView.h"
#include "platform/views/ViewController.h"
#include "text_statistics/TextView.h"

#include <QPointer>

#include <optional>

/// The scroll view is the controller's view, the page its document, and the text view lies on the page.
class PageSizeForMeasuringPreviewViewController : public ViewController {
public:
    /// engine: lays the column out; not null, may serve others of the same thread as well.
    explicit PageSizeForMeasuringPreviewViewController(std::shared_ptr<LayoutEngine> engine);

    /// Null before loadView().
    [[nodiscard]] const std::shared_ptr<TextView> &previewTextView() const { return m_previewTextView; }
    /// The page; null before loadView() and when the scroll view has let it go.
    [[nodiscard]] FlippedView *wrapperView() const { return m_wrapperView; }
    /// Null before loadView() and when the controller has been given another view.
    [[nodiscard]] QBYScrollView *mainScrollView() const { return m_mainScrollView; }

    /// Makes those of the three views that are missing, puts the text view on top of the page and scrolls to
    /// the page's top.
    void loadView() override;

    /// Points; absent where the insets leave the column no width.
    static std::optional<double> columnWidth(const QSizeF &size, double leftInset, double rightInset);

    /// Points. Makes the page that large, sets the column between the insets, and shrinks the page to fit;
    /// the column keeps its height. Insets that leave the column no width change nothing at all.
    void setPreviewContentFrameSize(const QSizeF &size, double leftInset, double rightInset);

    /// The points beside the shrunk page: the scroll view's width less the page's width as shown.
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
