// SPDX-License-Identifier: MIT
// Button is a view that the user presses: with a title, or with an icon and an accessible name.
// Thread: main.  Owner: its superview or window.
#pragma once

#include "platform/views/View.h"

class Button : public View {
    Q_OBJECT

public:
    using View::View;

    [[nodiscard]] const QString &title() const { return m_title; }
    void setTitle(const QString &title);

    /// A name of freedesktop.org's standard icons, as "edit-copy", or of Quillbay's own symbols:
    /// "quillbay-close". Empty for none.
    [[nodiscard]] const QString &iconName() const { return m_iconName; }
    void setIconName(const QString &name);

    [[nodiscard]] bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);

    /// As if the user had pressed it: a disabled button does nothing.
    void performClick();

Q_SIGNALS:
    void clicked();
    /// The title or the icon.
    void faceDidChange();
    void enabledDidChange();

private:
    QString m_title;
    QString m_iconName;
    bool m_enabled = true;
};
