// SPDX-License-Identifier: MIT
// ViewController makes a tree of views when it is first needed, and looks after it.
// Thread: main.  Owner: whoever shows the view; shares the ownership of the view.
#pragma once

#include "platform/views/View.h"

#include <optional>

class ViewController : public QObject {
public:
    /// Loads the view first where there is none.
    const std::shared_ptr<View> &view();
    void setView(std::shared_ptr<View> view) { m_view = std::move(view); }
    [[nodiscard]] bool isViewLoaded() const { return m_view != nullptr; }

    /// Makes the view and hands it to setView(). Leaves alone what is there already.
    virtual void loadView() = 0;
    /// Runs once after each loadView() that view() asked for.
    virtual void viewDidLoad() { }
    /// Told by who shows the view, each time before it comes onto the screen.
    virtual void viewWillAppear() { }

    /// What the view is about, for who shows it; absent for nothing.
    [[nodiscard]] const std::optional<QString> &title() const { return m_title; }
    virtual void setTitle(const std::optional<QString> &title) { m_title = title; }

private:
    std::shared_ptr<View> m_view;
    std::optional<QString> m_title;
};
