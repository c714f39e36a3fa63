// SPDX-License-Identifier: MIT
// ServiceCommandTest is the fixture of tests of the commands that open windows. They run on a private display
// and a private bus, which starts a provider that records its requests.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/command/CommandTest.h"
#include "tests/harness/Display.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

class ServiceCommandTest : public CommandTest {
protected:
    ServiceCommandTest()
    {
        SessionBus::start();
        TestDisplay::start();
        writeFile(QStringLiteral("requests"), {});
        installProvider();
    }

    /// refusal: the error with which the provider answers every request; one word.
    static void installProvider(const QByteArray &refusal = {})
    {
        const QString folder = world().data() + QStringLiteral("/dbus-1/services");
        QDir().mkpath(folder);
        QFile file(folder + QStringLiteral("/com.quillbay.ServiceProvider.service"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[D-BUS Service]\nName=com.quillbay.ServiceProvider\nExec="
            + QFile::encodeName(testProgram(QStringLiteral("service_recorder"))) + " '"
            + QFile::encodeName(recordFile()) + "' " + refusal + '\n');
        file.close();
        reloadServices();
    }
    static void removeProvider()
    {
        QDir(world().data() + QStringLiteral("/dbus-1/services")).removeRecursively();
        reloadServices();
    }

    /// The requests so far.
    static QList<QJsonObject> requests()
    {
        QList<QJsonObject> objects;
        for (const QByteArray &line : readFile(recordFile()).split('\n')) {
            if (!line.isEmpty())
                objects.append(QJsonDocument::fromJson(line).object());
        }
        return objects;
    }
    /// The only request; fails the test if there are none or several.
    static QJsonObject request()
    {
        EXPECT_EQ(requests().size(), 1);
        return requests().value(0);
    }

private:
    static QString recordFile() { return world().root() + QStringLiteral("/files/requests"); }
    static void reloadServices()
    {
        // Explicitly, as the bus compares modification times in seconds.
        QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("ReloadConfig")));
    }
};
