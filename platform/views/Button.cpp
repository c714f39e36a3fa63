// SPDX-License-Identifier: MIT
#include "platform/views/Button.h"

void Button::setTitle(const QString &title)
{
    if (m_title == title)
        return;
    m_title = title;
    Q_EMIT faceDidChange();
}

void Button::setIconName(const QString &name)
{
    if (m_iconName == name)
        return;
    m_iconName = name;
    Q_EMIT faceDidChange();
}

void Button::setEnabled(bool enabled)
{
    if (m_enabled == enabled)
        return;
    m_enabled = enabled;
    Q_EMIT enabledDidChange();
}

void Button::performClick()
{
    if (m_enabled)
        Q_EMIT clicked();
}
