// SPDX-License-Identifier: MIT
#include "tests/command/ServiceCommandTest.h"

#include <QDBusConnection>
#include <QDBusMessage>

void ServiceCommandTest::removeProvider()
{
    QDir(world().data() + QStringLiteral("/dbus-1/services")).removeRecursively();
    reloadServices();
}

void ServiceCommandTest::reloadServices()
{
    // The bus itself looks at the times of the files, in seconds.
    QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("ReloadConfig")));
}
