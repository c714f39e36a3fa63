// SPDX-License-Identifier: MIT
// ScrollView shows a document view that may be larger than itself, scrolled and magnified; ClipView is the
// part of it through which the document is visible.
// Thread: main.  Owner: its superview or window; a clip view is owned by its scroll view.
#pragma once

#include "platform/views/View.h"

#include <optional>

/// Holds where the document is scrolled to and how far it is magnified.
class ClipView : public View {
    Q_OBJECT

public:
    using View::View;

    /// Null for none.
    [[nodiscard]] View *documentView() const
    {
        return subviews().empty() ? nullptr : subviews().front().get();
    }
    void setDocumentView(const std::shared_ptr<View> &view);

    /// The visible part of the document: its origin is the scroll position, its size that of the frame
    /// divided by the magnification.
    [[nodiscard]] QRectF bounds() const override;
    /// Follows the document, which therefore scrolls in its own coordinates.
    [[nodiscard]] bool isFlipped() const override;

    /// Accepts any point, even one that shows empty space beside the document.
    void scrollToPoint(const QPointF &point);

    [[nodiscard]] double magnification() const { return m_magnification; }
    /// factor: finite, above 0.
    void setMagnification(double factor);

Q_SIGNALS:
    /// The scroll position or the magnification changed; the size of the frame has frameDidChange().
    void boundsDidChange();

private:
    QPointF m_scrollPosition;
    double m_magnification = 1;
};

class ScrollView : public View {
    Q_OBJECT

public:
    explicit ScrollView(const QRectF &frame = {});

    /// Null for none; owned by the content view.
    [[nodiscard]] View *documentView() const { return m_contentView->documentView(); }
    void setDocumentView(const std::shared_ptr<View> &view) { m_contentView->setDocumentView(view); }

    /// Fills the scroll view; the scroller lies over it and takes no space.
    [[nodiscard]] ClipView &contentView() const { return *m_contentView; }
    /// In points of the scroll view, independent of the magnification.
    [[nodiscard]] QSizeF contentSize() const { return m_contentView->frame().size(); }

    /// Points of the scroll view per point of the document.
    [[nodiscard]] double magnification() const { return m_contentView->magnification(); }
    [[nodiscard]] double minMagnification() const { return m_minMagnification; }
    /// Applies from the next magnification on. Above 0 and at most maxMagnification; other values are
    /// ignored.
    void setMinMagnification(double factor);
    static constexpr double maxMagnification = 4;

    /// Magnifies the document, within the limits, until the rectangle of it just fits, and centres the
    /// rectangle. An empty or infinite rectangle changes nothing.
    void magnifyToFitRect(const QRectF &rect);

    [[nodiscard]] bool hasVerticalScroller() const { return m_verticalScrollerValue.has_value(); }
    void setHasVerticalScroller(bool hasScroller);
    /// From 0, the top of the document, to 1, its bottom; absent without a scroller.
    [[nodiscard]] std::optional<double> verticalScrollerValue() const { return m_verticalScrollerValue; }
    /// Moves only the knob. Clamped to 0 and 1; ignored without a scroller.
    void setVerticalScrollerValue(double value);

    /// Scrolls up to the document's ends. An event that scrolls nothing is passed to the superview.
    void scrollWheel(const ScrollWheelEvent &event) override;

Q_SIGNALS:
    /// The scroller appeared, disappeared or moved.
    void verticalScrollerDidChange();

protected:
    void layoutForNewFrame() override;

private:
    [[nodiscard]] QPointF scrollPositionAfter(const ScrollWheelEvent &event) const;
    [[nodiscard]] double scrollerValueForScrollPosition() const;

    std::shared_ptr<ClipView> m_contentView;
    double m_minMagnification = 0.25;
    std::optional<double> m_verticalScrollerValue;
};
