// SPDX-License-Identifier: MIT
// FakePortal is a desktop portal on the private session bus, with one setting.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/harness/SessionBus.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QObject>

#include <gtest/gtest.h>

class FakePortal : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit FakePortal(uint colorScheme)
        : m_bus(QDBusConnection::connectToBus(SessionBus::start(), QStringLiteral("portal")))
        , m_colorScheme(colorScheme)
    {
        EXPECT_TRUE(m_bus.registerObject(
            QStringLiteral("/org/freedesktop/portal/desktop"), this, QDBusConnection::ExportAllSlots));
        EXPECT_TRUE(m_bus.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    ~FakePortal() override { QDBusConnection::disconnectFromBus(QStringLiteral("portal")); }

    void change(uint colorScheme)
    {
        m_colorScheme = colorScheme;
        send(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"), colorScheme);
    }

    void send(const QString &space, const QString &key, const QVariant &value)
    {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal.setArguments({space, key, QVariant::fromValue(QDBusVariant(value))});
        EXPECT_TRUE(m_bus.send(signal));
    }

public Q_SLOTS:
    // NOLINTNEXTLINE(readability-identifier-naming): a name of the interface
    QDBusVariant Read(const QString &space, const QString &key)
    {
        if (space != QStringLiteral("org.freedesktop.appearance") || key != QStringLiteral("color-scheme")) {
            sendErrorReply(
                QStringLiteral("org.freedesktop.portal.Error.NotFound"), QStringLiteral("no such setting"));
            return {};
        }
        return QDBusVariant(QVariant::fromValue(QDBusVariant(m_colorScheme)));
    }

private:
    QDBusConnection m_bus;
    uint m_colorScheme;
};
