// SPDX-License-Identifier: MIT
#include "platform/views/ApplicationActivity.h"

void ApplicationActivity::setActive(bool isActive)
{
    if (isActive == m_isActive)
        return;
    if (!isActive)
        Q_EMIT willResignActive();
    m_isActive = isActive;
    if (isActive)
        Q_EMIT didBecomeActive();
}
