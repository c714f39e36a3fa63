// SPDX-License-Identifier: MIT
#include "tests/harness/SessionBus.h"

#include "tests/harness/TestHome.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <memory>

namespace {

struct RunningBus {
    std::unique_ptr<QProcess> daemon;
    QString address;
};

RunningBus &runningBus()
{
    static RunningBus bus;
    return bus;
}

} // namespace

QString SessionBus::start()
{
    RunningBus &bus = runningBus();
    if (!bus.daemon) {
        const QString folder = TestHome::instance().root() + QStringLiteral("/bus");
        QDir().mkpath(folder);
        QFile configuration(folder + QStringLiteral("/session.conf"));
        if (!configuration.open(QIODevice::WriteOnly)) {
            ADD_FAILURE() << "cannot write the configuration of the private bus";
            return {};
        }
        configuration.write(QStringLiteral(
            "<!DOCTYPE busconfig PUBLIC \"-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN\"\n"
            " \"http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd\">\n"
            "<busconfig>\n"
            "  <type>session</type>\n"
            "  <listen>%1</listen>\n"
            "  <servicedir>%2/dbus-1/services</servicedir>\n"
            "  <auth>EXTERNAL</auth>\n"
            "  <policy context=\"default\">\n"
            "    <allow send_destination=\"*\" eavesdrop=\"true\"/>\n"
            "    <allow eavesdrop=\"true\"/>\n"
            "    <allow own=\"*\"/>\n"
            "  </policy>\n"
            "</busconfig>\n")
                                .arg(TestHome::busAddress(folder + QStringLiteral("/socket")),
                                    TestHome::instance().data().toHtmlEscaped())
                                .toUtf8());
        configuration.close();
        auto daemon = std::make_unique<QProcess>();
        daemon->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        daemon->start(QStringLiteral(DBUS_DAEMON),
            {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"), QStringLiteral("--print-address"),
                QStringLiteral("--config-file=%1").arg(configuration.fileName())});
        if (!daemon->waitForReadyRead(10000)) {
            ADD_FAILURE() << "the private bus did not start";
            return {};
        }
        bus.address = QString::fromLocal8Bit(daemon->readLine()).trimmed();
        bus.daemon = std::move(daemon);
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address.toLocal8Bit());
    return bus.address;
}

void SessionBus::stop()
{
    RunningBus &bus = runningBus();
    if (!bus.daemon)
        return;
    bus.daemon->terminate();
    bus.daemon->waitForFinished();
    bus.daemon = nullptr;
}
