// SPDX-License-Identifier: MIT
// View is a rectangle in a tree of rectangles: its place, its subviews and its drawing, without pixels.
// Putting it on a screen is left to platform/views/widgets, which follows its signals. Views are made with
// std::make_shared and have no Qt parent.
// Thread: main.  Owner: its superview or window, shared with others; refers to superview and window weakly.
#pragma once

#include "platform/views/Geometry.h"

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class Painter;
class Window;

struct ScrollWheelEvent {
    double deltaX = 0; ///< points by which the content moves to the right
    double deltaY = 0; ///< points by which the content moves down; positive reveals what is above
};

class View : public QObject {
    Q_OBJECT

public:
    explicit View(const QRectF &frame = {});
    ~View() override;

    /// In the coordinates of the superview, or of the window for its content view.
    [[nodiscard]] const QRectF &frame() const { return m_frame; }
    void setFrame(const QRectF &frame);
    void setFrameOrigin(const QPointF &origin) { setFrame({origin, m_frame.size()}); }
    void setFrameSize(const QSizeF &size) { setFrame({m_frame.topLeft(), size}); }

    /// The part of the view's own coordinates that its frame shows.
    [[nodiscard]] virtual QRectF bounds() const { return {QPointF(), m_frame.size()}; }
    /// Whether y grows downward in the view's own coordinates.
    [[nodiscard]] virtual bool isFlipped() const { return false; }

    /// A hidden view keeps its place; it and its subviews are invisible.
    [[nodiscard]] bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);

    /// The tag from the interface file; 0 if it gives none.
    [[nodiscard]] qint64 tag() const { return m_tag; }
    void setTag(qint64 tag) { m_tag = tag; }

    /// The object name from the interface file; empty if it gives none.
    [[nodiscard]] const QString &identifier() const { return m_identifier; }
    void setIdentifier(const QString &identifier) { m_identifier = identifier; }

    /// The name for screen readers; if empty, they read what the view shows.
    [[nodiscard]] const QString &accessibleName() const { return m_accessibleName; }
    void setAccessibleName(const QString &name);
    [[nodiscard]] const QString &toolTip() const { return m_toolTip; }
    void setToolTip(const QString &text);

    /// The opacity of the view and its subviews, from 0, invisible, to 1.
    [[nodiscard]] double alphaValue() const { return m_alphaValue; }
    void setAlphaValue(double alpha) { fadeTo(alpha, 0); }
    /// The view has the new value at once; its widget changes gradually over that time. Clamped to 0 and 1;
    /// NaN is ignored.
    void fadeTo(double alpha, int milliseconds);

    /// Lowest first.
    [[nodiscard]] const std::vector<std::shared_ptr<View>> &subviews() const { return m_subviews; }
    [[nodiscard]] View *superview() const { return m_superview; }
    [[nodiscard]] Window *window() const;
    /// Converts a rectangle from the view's own coordinates to those of its window, with the origin at the
    /// bottom left; in a tree without a window, to the coordinates of the topmost view's frame.
    [[nodiscard]] QRectF convertToWindow(const QRectF &rect) const;

    /// Puts the view above all other subviews, after removing it from its former superview or window. Does
    /// nothing for a null view, for this view and for the views that contain it.
    void addSubview(std::shared_ptr<View> view);
    /// Destroys the view unless others share it.
    void removeFromSuperview();

    /// Requests a redraw of the whole view.
    void setNeedsDisplay() { Q_EMIT displayNeeded(); }
    /// Draws the view without its subviews. dirtyRect: the part of the bounds that must be drawn.
    virtual void drawRect(const QRectF &dirtyRect, Painter &painter);

    /// A view that does not handle the event passes it to its superview.
    virtual void scrollWheel(const ScrollWheelEvent &event);

Q_SIGNALS:
    void frameDidChange();
    void hiddenDidChange();
    void descriptionDidChange(); ///< the accessible name or the tool tip
    void alphaValueDidChange(int milliseconds);
    void subviewsDidChange();
    void displayNeeded();

protected:
    /// Called after every change of the frame, before frameDidChange().
    virtual void layoutForNewFrame() { }

private:
    friend class Window; // sets m_window

    [[nodiscard]] QRectF convertToSuperview(const QRectF &rect) const;
    [[nodiscard]] bool isOrLiesIn(const View &view) const;
    std::shared_ptr<View> takeSubview(const View &view);
    void leaveSuperviewAndWindow();

    QRectF m_frame;
    bool m_hidden = false;
    qint64 m_tag = 0;
    double m_alphaValue = 1;
    QString m_identifier;
    QString m_accessibleName;
    QString m_toolTip;
    std::vector<std::shared_ptr<View>> m_subviews;
    View *m_superview = nullptr;
    Window *m_window = nullptr; // set in content views only
};
