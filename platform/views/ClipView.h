// SPDX-License-Identifier: MIT
// ClipView is the window through which a scroll view shows its document: where the document is scrolled to,
// and how large. Thread: main.  Owner: its ScrollView.
#pragma once

#include "platform/views/View.h"

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
    /// As its document is, so that the document scrolls in its own coordinates.
    [[nodiscard]] bool isFlipped() const override;

    /// Takes any point, also one that shows room beside the document.
    void scrollToPoint(const QPointF &point);

    [[nodiscard]] double magnification() const { return m_magnification; }
    /// factor: finite, above 0.
    void setMagnification(double factor);

Q_SIGNALS:
    /// The scroll position or the magnification changed; for the size of the frame see frameDidChange().
    void boundsDidChange();

private:
    QPointF m_scrollPosition;
    double m_magnification = 1;
};
