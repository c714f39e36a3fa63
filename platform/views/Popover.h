// SPDX-License-Identifier: MIT
// Popover is a small window beside a positioning rectangle. The user can drag it off: then a window that its
// delegate provides replaces it.
// Thread: main.  Owner: the watcher that shows it; shares the ownership of its content.
#pragma once

#include "platform/system/WeakDelegate.h"
#include "platform/views/Desktop.h"
#include "platform/views/ViewController.h"
#include "platform/views/Window.h"

#include <QTimer>

class Popover;

class PopoverDelegate : public Delegate {
public:
    // All are optional.
    virtual bool popoverShouldDetach(Popover & /*popover*/) { return false; }
    virtual void popoverWillShow(Popover & /*popover*/) { }
    /// The window that replaces the detached pop-over; null: the pop-over stays where it was dragged to.
    virtual std::shared_ptr<Window> detachableWindowForPopover(Popover & /*popover*/) { return nullptr; }
};

/// The edge of the positioning rectangle at which a pop-over opens, if there is space.
enum class RectEdge { MinX, MinY, MaxX, MaxY };

/// Stays open until it is closed.
class Popover : public QObject {
    Q_OBJECT

public:
    /// How far the user has to drag a pop-over to detach it, in points.
    static constexpr double detachDistance = 20;

    /// desktop: outlives the pop-over.
    explicit Popover(Desktop &desktop);
    ~Popover() override;

    [[nodiscard]] PopoverDelegate *delegate() const { return m_delegate.get(); }
    void setDelegate(PopoverDelegate *delegate) { m_delegate = delegate; }

    /// Null for none.
    [[nodiscard]] const std::shared_ptr<ViewController> &contentViewController() const
    {
        return m_contentViewController;
    }
    /// Loads the controller's view and takes its size.
    void setContentViewController(std::shared_ptr<ViewController> controller);

    [[nodiscard]] QSizeF contentSize() const { return m_window->frame().size(); }
    void setContentSize(const QSizeF &size);

    [[nodiscard]] bool isShown() const { return m_window->isVisible(); }
    /// Moves a pop-over that is already shown. positioningRect: on the screen.
    void show(const QRectF &positioningRect, RectEdge preferredEdge);
    void close();

    /// The window that shows the content.
    [[nodiscard]] const std::shared_ptr<Window> &window() const { return m_window; }

private:
    [[nodiscard]] QRectF placeFor(const QSizeF &size) const;
    void place();
    void windowDidMove();
    void detach();

    Desktop &m_desktop;
    WeakDelegate<PopoverDelegate> m_delegate;
    std::shared_ptr<ViewController> m_contentViewController;
    std::shared_ptr<Window> m_window;
    std::unique_ptr<WindowOnScreen> m_windowOnScreen;
    QRectF m_positioningRect;
    RectEdge m_preferredEdge = RectEdge::MinY;
    bool m_isPlacing = false;
    QTimer m_detachTimer; // a dragged pop-over detaches once it no longer moves
};
