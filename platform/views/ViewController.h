// SPDX-License-Identifier: MIT
// ViewController makes a tree of views on first use and manages it; a window or pop-over shows the view.
// Thread: main.  Owner: whatever shows the view; shares the ownership of the view.
#pragma once

#include "platform/views/View.h"

#include <optional>

class ViewController : public QObject {
public:
    /// Loads the view if there is none.
    const std::shared_ptr<View> &view()
    {
        if (!m_view) {
            loadView();
            viewDidLoad();
        }
        return m_view;
    }
    void setView(std::shared_ptr<View> view) { m_view = std::move(view); }
    [[nodiscard]] bool isViewLoaded() const { return m_view != nullptr; }

    /// Makes the view and passes it to setView(). Does not look for an existing one.
    virtual void loadView() = 0;
    /// Called once after each loadView() that view() caused.
    virtual void viewDidLoad() { }
    /// Called by whatever shows the view, each time before the view appears on the screen.
    virtual void viewWillAppear() { }

    /// The title that a window or pop-over shows for the view; absent for none.
    [[nodiscard]] const std::optional<QString> &title() const { return m_title; }
    virtual void setTitle(const std::optional<QString> &title) { m_title = title; }

private:
    std::shared_ptr<View> m_view;
    std::optional<QString> m_title;
};
