// SPDX-License-Identifier: MIT
#include "platform/views/widgets/ApplicationActivitySource.h"

#include <QEvent>
#include <QGuiApplication>

ApplicationActivitySource::ApplicationActivitySource(ApplicationActivity &activity, QObject *parent)
    : QObject(parent)
    , m_activity(activity)
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &ApplicationActivitySource::update);
    qGuiApp->installEventFilter(this);
    update();
}

void ApplicationActivitySource::update()
{
    m_activity.setActive(
        QGuiApplication::applicationState() == Qt::ApplicationActive && QGuiApplication::focusWindow());
}

/// Qt gets no focus event when a window is destroyed while it has the focus, and would go on to report the
/// program as active.
bool ApplicationActivitySource::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PlatformSurface)
        QMetaObject::invokeMethod(this, &ApplicationActivitySource::update, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}
