// SPDX-License-Identifier: MIT
// ServiceCommandTest is the fixture of tests that run the commands which open windows: on a private bus that
// starts a provider which records what it is asked, and on the private display.
// Thread: main.
#pragma once

#include "tests/command/CommandTest.h"
#include "tests/harness/Display.h"

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

    /// refusal: what the provider says to every request, without blanks.
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
    static void removeProvider();

    /// The requests that have come so far.
    static QList<QJsonObject> requests()
    {
        QList<QJsonObject> objects;
        for (const QByteArray &line : readFile(recordFile()).split('\n')) {
            if (!line.isEmpty())
                objects.append(QJsonDocument::fromJson(line).object());
        }
        return objects;
    }
    /// The only one; fails the test if there are none or others.
    static QJsonObject request()
    {
        EXPECT_EQ(requests().size(), 1);
        return requests().value(0);
    }

private:
    static QString recordFile() { return world().root() + QStringLiteral("/files/requests"); }
    static void reloadServices();
};
