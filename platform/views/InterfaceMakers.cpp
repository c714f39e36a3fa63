// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceMakers.h"

#include "platform/views/Box.h"
#include "platform/views/Button.h"
#include "platform/views/Label.h"
#include "platform/views/ProgressIndicator.h"

InterfaceMakers::InterfaceMakers()
{
    add<View>(QStringLiteral("QWidget"));
    add<Label>(QStringLiteral("QLabel"));
    add<Button>(QStringLiteral("QPushButton"));
    add<Button>(QStringLiteral("QToolButton"));
    add<ProgressIndicator>(QStringLiteral("QProgressBar"));
    add<Box>(QStringLiteral("QFrame"));
    add(QStringLiteral("Line"), [] { return std::make_shared<Box>(Box::Kind::Separator); });
}

std::shared_ptr<View> InterfaceMakers::make(const QString &className) const
{
    const auto maker = m_makers.constFind(className);
    return maker == m_makers.cend() ? nullptr : (*maker)();
}
