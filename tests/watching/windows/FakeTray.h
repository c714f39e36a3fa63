// SPDX-License-Identifier: MIT
// FakeTray is a desktop's tray on the private session bus (StatusNotifierWatcher): it records the registered
// items and clicks them.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/harness/SessionBus.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

#include <gtest/gtest.h>

class FakeTray : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)
    Q_PROPERTY(int ProtocolVersion READ protocolVersion)
    Q_PROPERTY(QStringList RegisteredStatusNotifierItems READ items)

public:
    FakeTray()
        : m_bus(QDBusConnection::connectToBus(SessionBus::start(), QStringLiteral("tray")))
    {
        EXPECT_TRUE(m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllProperties
                | QDBusConnection::ExportAllSignals));
        EXPECT_TRUE(m_bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")));
    }
    ~FakeTray() override { QDBusConnection::disconnectFromBus(QStringLiteral("tray")); }

    [[nodiscard]] static bool hasHost() { return true; }
    [[nodiscard]] static int protocolVersion() { return 0; }
    /// The bus names of the registered items.
    [[nodiscard]] QStringList items() const { return m_items; }

    void click(const QString &item) const
    {
        QDBusMessage message = QDBusMessage::createMethodCall(item, QStringLiteral("/StatusNotifierItem"),
            QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("Activate"));
        message.setArguments({0, 0});
        EXPECT_TRUE(m_bus.send(message));
    }

public Q_SLOTS:
    // NOLINTNEXTLINE(readability-identifier-naming): a name of the interface
    void RegisterStatusNotifierItem(const QString &item) { m_items.append(item); }

Q_SIGNALS:
    // NOLINTNEXTLINE(readability-identifier-naming): names of the interface
    void StatusNotifierHostRegistered();
    void StatusNotifierItemRegistered(const QString &item);

private:
    QDBusConnection m_bus;
    QStringList m_items;
};
