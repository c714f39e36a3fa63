// SPDX-License-Identifier: MIT
// ShortcutTest is the fixture of tests that bind keys in the real settings of a desktop, in the test's own
// home.
// Thread: main.  Owner: the test.
#pragma once

#include "platform/shortcuts/DesktopShortcut.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/harness/Requirement.h"
#include "tests/harness/SessionBus.h"
#include "tests/harness/WaitUntil.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <ostream>

inline std::ostream &operator<<(std::ostream &stream, const QKeySequence &keys)
{
    return stream << keys.toString().toStdString();
}

class ShortcutTest : public QuillbayTest {
protected:
    /// service: one of the desktop that the private bus is to start.
    explicit ShortcutTest(const QString &service = {})
    {
        const QString file = u'/' + service + QStringLiteral(".service");
        const QString folder = world().data() + QStringLiteral("/dbus-1/services");
        QDir().mkpath(folder);
        QFile::copy(QStringLiteral("/usr/share/dbus-1/services") + file, folder + file);
        SessionBus::start();
        QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), busName)
            .call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
                QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
                QStringLiteral("ReloadConfig")));
    }
    ~ShortcutTest() override
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
        QDBusConnection::disconnectFromBus(busName);
    }
    static inline const QString busName = QStringLiteral("shortcut test");

    /// Starts a program of the desktop on the test's display, and waits until it has the name on the bus.
    void startDaemon(const QString &program, const QString &name)
    {
        TestDisplay::start();
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        m_daemon.setProcessEnvironment(environment);
        m_daemon.setStandardErrorFile(QProcess::nullDevice());
        m_daemon.start(program, {});
        const QDBusConnection bus(busName);
        ASSERT_TRUE(waitUntil([&] { return bus.interface()->isServiceRegistered(name).value(); }));
    }

    static ShortcutCommand command()
    {
        return {.title = QStringLiteral("Count Selected Text"),
            .words = {QStringLiteral("/opt/quill bay/bin/quillbay"), QStringLiteral("selection")},
            .desktopFile = QStringLiteral("com.quillbay.Quillbay.desktop"),
            .desktopAction = QStringLiteral("CountSelectedText")};
    }
    static QKeySequence keys() { return {QStringLiteral("Meta+Shift+W")}; }
    static QKeySequence otherKeys() { return {QStringLiteral("Ctrl+Alt+Shift+F9")}; }

    static bool isInstalled(const QString &program)
    {
        return !QStandardPaths::findExecutable(program).isEmpty();
    }

    static QByteArray outputOf(const QString &program, const QByteArrayList &words)
    {
        const ChildProcess::Outcome outcome =
            ChildProcess(QStandardPaths::findExecutable(program)).run(words);
        return outcome.output;
    }

    /// What every desktop's switch must do.
    static void expectToBindAndUnbind(DesktopShortcut &shortcut)
    {
        EXPECT_EQ(shortcut.keys().value(), QKeySequence());
        EXPECT_EQ(shortcut.userOf(keys()), QString());
        EXPECT_EQ(shortcut.bind(keys()), std::nullopt);
        EXPECT_EQ(shortcut.keys().value(), keys());
        EXPECT_EQ(shortcut.userOf(keys()), QString()); // its own keys are no conflict
        EXPECT_EQ(shortcut.bind(otherKeys()), std::nullopt);
        EXPECT_EQ(shortcut.keys().value(), otherKeys());
        EXPECT_EQ(shortcut.unbind(), std::nullopt);
        EXPECT_EQ(shortcut.keys().value(), QKeySequence());
        EXPECT_EQ(shortcut.unbind(), std::nullopt);
    }

private:
    QProcess m_daemon;
};
