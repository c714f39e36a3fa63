// SPDX-License-Identifier: MIT
// ScrollView shows a document view that may be larger than itself, moved and magnified.
// Thread: main.  Owner: its superview or window.
#pragma once

#include "platform/views/ClipView.h"

#include <optional>

class ScrollView : public View {
    Q_OBJECT

public:
    explicit ScrollView(const QRectF &frame = {});

    /// Null for none; owned by the content view.
    [[nodiscard]] View *documentView() const { return m_contentView->documentView(); }
    void setDocumentView(const std::shared_ptr<View> &view) { m_contentView->setDocumentView(view); }

    /// Fills the scroll view; the scroller lies over it and takes no room.
    [[nodiscard]] ClipView &contentView() const { return *m_contentView; }
    /// Points of the scroll view, whatever the magnification.
    [[nodiscard]] QSizeF contentSize() const { return m_contentView->frame().size(); }

    /// Points of the scroll view per point of the document.
    [[nodiscard]] double magnification() const { return m_contentView->magnification(); }
    [[nodiscard]] double minMagnification() const { return m_minMagnification; }
    /// For magnifications from now on. Above 0 and at most maxMagnification; anything else is ignored.
    void setMinMagnification(double factor);
    static constexpr double maxMagnification = 4;

    /// Magnifies the document as far as the rectangle of it still fits, within the limits, and shows the
    /// rectangle in the middle. A rectangle without area or without end changes nothing.
    void magnifyToFitRect(const QRectF &rect);

    [[nodiscard]] bool hasVerticalScroller() const { return m_verticalScrollerValue.has_value(); }
    void setHasVerticalScroller(bool hasScroller);
    /// From 0, the top of the document, to 1, its bottom; absent without a scroller.
    [[nodiscard]] std::optional<double> verticalScrollerValue() const { return m_verticalScrollerValue; }
    /// Only moves the knob; beyond the ends it stays at the end. Without a scroller nothing happens.
    void setVerticalScrollerValue(double value);

    /// Scrolls as far as the document goes. An event that scrolls nothing goes to the superview.
    void scrollWheel(const ScrollWheelEvent &event) override;

Q_SIGNALS:
    /// The scroller came, went or moved.
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
