// SPDX-License-Identifier: MIT
#include "platform/views/widgets/ApplicationActivitySource.h"

#include <QEvent>
#include <QGuiApplication>

ApplicationActivitySource::ApplicationActivitySource(ApplicationActivity &activity, QObject *parent)
    : QObject(parent)
    , m_activity(activity)
{
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &ApplicationActivitySource::tell);
    qGuiApp->installEventFilter(this);
    tell();
}

void ApplicationActivitySource::tell()
{
    m_activity.setActive(
        QGuiApplication::applicationState() == Qt::ApplicationActive && QGuiApplication::focusWindow());
}

/// Of a window that is destroyed while it has the keyboard, Qt hears no more, and takes the program for
/// active.
bool ApplicationActivitySource::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PlatformSurface)
        QMetaObject::invokeMethod(this, &ApplicationActivitySource::tell, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}
