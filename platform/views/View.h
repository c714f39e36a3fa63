// SPDX-License-Identifier: MIT
// View is a rectangle in a tree of rectangles: where it lies, what lies on it, what it draws. It has no
// pixels of its own; what shows it on a screen follows its signals. Thread: main.  Owner: its superview or
// window, and anyone else who shares it; a view refers to its superview and window weakly. Views are made
// with std::make_shared and have no Qt parent.
#pragma once

#include "platform/views/Geometry.h"

#include <QObject>
#include <QString>

#include <memory>
#include <vector>

class Painter;
class Window;

struct ScrollWheelEvent {
    double deltaX = 0; ///< points the content is to move to the right
    double deltaY = 0; ///< points the content is to move down; positive shows what lies above
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

    /// A hidden view keeps its place and shows nothing, nor do its subviews.
    [[nodiscard]] bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden);

    /// A number that the interface file gives the view; 0 where it gives none.
    [[nodiscard]] qint64 tag() const { return m_tag; }
    void setTag(qint64 tag) { m_tag = tag; }

    /// The object name that the interface file gives the view; empty where it gives none.
    [[nodiscard]] const QString &identifier() const { return m_identifier; }
    void setIdentifier(const QString &identifier) { m_identifier = identifier; }

    /// What a screen reader calls the view; where it is empty, what the view shows.
    [[nodiscard]] const QString &accessibleName() const { return m_accessibleName; }
    void setAccessibleName(const QString &name);
    [[nodiscard]] const QString &toolTip() const { return m_toolTip; }
    void setToolTip(const QString &text);

    /// The opacity of the view and its subviews, from 0, invisible, to 1.
    [[nodiscard]] double alphaValue() const { return m_alphaValue; }
    void setAlphaValue(double alpha) { fadeTo(alpha, 0); }
    /// The view has the new value at once; what shows it on a screen goes there step by step within that
    /// time. Beyond the ends it is the end; a value that is no number is ignored.
    void fadeTo(double alpha, int milliseconds);

    /// Lowest first.
    [[nodiscard]] const std::vector<std::shared_ptr<View>> &subviews() const { return m_subviews; }
    [[nodiscard]] View *superview() const { return m_superview; }
    [[nodiscard]] Window *window() const;
    /// Takes a rectangle in the view's own coordinates to those of its window, from the bottom left; in a
    /// tree without a window, to those in which the frame of the topmost view is given.
    [[nodiscard]] QRectF convertToWindow(const QRectF &rect) const;

    /// Puts the view above all other subviews. It leaves the superview or window it had; a subview of this
    /// view only moves up. A null view, this view and the views that hold it are refused: nothing changes.
    void addSubview(std::shared_ptr<View> view);
    /// Ends the view's life where nobody else shares it.
    void removeFromSuperview();

    /// Asks for the whole view to be drawn anew.
    void setNeedsDisplay() { Q_EMIT displayNeeded(); }
    /// Draws the view without its subviews. dirtyRect: the part of the bounds that must be drawn.
    virtual void drawRect(const QRectF &dirtyRect, Painter &painter);

    /// A view that has no use for the event hands it to its superview.
    virtual void scrollWheel(const ScrollWheelEvent &event);

Q_SIGNALS:
    void frameDidChange();
    void hiddenDidChange();
    void descriptionDidChange(); ///< the accessible name or the tool tip
    void alphaValueDidChange(int milliseconds);
    void subviewsDidChange();
    void displayNeeded();

protected:
    /// Runs at every change of the frame, before anyone else is told.
    virtual void layoutForNewFrame() { }

private:
    friend class Window; // sets m_window of its content view

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
    Window *m_window = nullptr; // of the content view only
};
