// SPDX-License-Identifier: MIT
// InterfaceMakers tells which view a class of an interface file makes. Rooms above add the names of their own
// classes, to which Designer promotes widgets. Thread: main.  Owner: whoever loads interface files; a value.
#pragma once

#include "platform/views/View.h"

#include <QHash>

#include <functional>

class InterfaceMakers {
public:
    using Maker = std::function<std::shared_ptr<View>()>;

    /// Knows QWidget (View), QLabel (Label), QPushButton and QToolButton (Button), QProgressBar
    /// (ProgressIndicator), QFrame (Box) and Line, Designer's name for separators (Box).
    InterfaceMakers();

    /// Replaces the maker that the class had.
    void add(const QString &className, Maker maker) { m_makers.insert(className, std::move(maker)); }
    /// For view classes without arguments.
    template <typename ViewClass>
    void add(const QString &className)
    {
        add(className, [] { return std::make_shared<ViewClass>(); });
    }

    /// Null for a class that has no maker.
    [[nodiscard]] std::shared_ptr<View> make(const QString &className) const;

private:
    QHash<QString, Maker> m_makers;
};
