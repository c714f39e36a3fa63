// SPDX-License-Identifier: MIT
// What the command finds on desktops, whole ones and ones with a fault: a private bus and display for each.
#include "tests/doctor/DoctorTest.h"
#include "tests/harness/Compositor.h"
#include "tests/harness/Display.h"
#include "tests/harness/PrivateBus.h"
#include "tests/platform/pasteboard/SelectionOwner.h"

#include <QDir>

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class SessionChecks : public DoctorTest {
protected:
    SessionChecks()
    {
        TestDisplay::start();
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.address());
    }

    static void installService(const char *busName, const char *program)
    {
        const QString folder = world().data() + QStringLiteral("/dbus-1/services");
        QDir().mkpath(folder);
        QFile file(folder + u'/' + QString::fromLatin1(busName) + QStringLiteral(".service"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray("[D-BUS Service]\nName=") + busName
            + "\nExec=" + QFile::encodeName(productProgram(QString::fromLatin1(program))) + '\n');
    }

    PrivateBus m_bus;
};

/// The same, with Quillbay installed.
class InstalledSessionChecks : public SessionChecks {
protected:
    InstalledSessionChecks()
    {
        installService("Brisklane.QBYServiceProviderXPC", "quillbay-counting-service");
        installService("com.quillbay.ServiceProvider", "quillbay-service-provider");
    }
};

} // namespace

TEST_F(InstalledSessionChecks, AWholeDesktopHasNoFaultAndTheStatusIsZero)
{
    setLocale("C.UTF-8"); // the only one that every machine has
    ChildProcess notifications(testProgram(QStringLiteral("notification_server")));
    notifications.start({});
    EXPECT_EQ(notifications.readLine(), QByteArray("ready"));
    const Report report = examine();
    EXPECT_EQ(report.exitStatus, 0);
    for (const auto &[check, finding] : report.findings)
        EXPECT_THAT(
            report.text(check.toLatin1()), ::testing::AnyOf(StartsWith("ok: "), StartsWith("note: ")));
    EXPECT_EQ(
        report.text("counting-service"), "ok: The counting service counts three words in \"One two three.\"");
    EXPECT_EQ(report.text("windows"), "ok: The program with the windows starts.");
    EXPECT_EQ(report.text("staying-above"), "ok: Openbox keeps Quillbay's windows above others.");
    EXPECT_THAT(report.text("tray"), StartsWith("note: "));
    EXPECT_TRUE(quillbay({"doctor"}).output.endsWith("\nEverything works.\n"));
}

TEST_F(InstalledSessionChecks, ADesktopWithoutNotificationsIsLimitedAndTheStatusIsOne)
{
    const Report report = examine();
    EXPECT_EQ(report.exitStatus, 1);
    EXPECT_THAT(report.text("notifications"), StartsWith("limited: "));
}

TEST_F(InstalledSessionChecks, ADisplayWithoutAWindowManagerIsLimited)
{
    ChildProcess server(QStringLiteral("/usr/bin/Xvfb"));
    server.start({"-displayfd", "1", "-nolisten", "tcp", "-screen", "0", "640x480x24"});
    qputenv("DISPLAY", ':' + server.readLine());
    const Report report = examine();
    EXPECT_THAT(report.text("display"), StartsWith("ok: "));
    EXPECT_THAT(report.text("staying-above"), StartsWith("limited: There is no window manager"));
}

TEST_F(SessionChecks, WaylandWithoutXIsNamedWithWhatItLacks)
{
    SKIP_WITHOUT_PACKAGE(TestCompositor::isInstalled(), TestCompositor::packages);
    const TestCompositor compositor;
    qunsetenv("DISPLAY");
    const Report report = examine();
    // Broken where Qt's plugin for Wayland is missing.
    EXPECT_THAT(report.text("display"),
        ::testing::AnyOf(
            StartsWith("limited: DISPLAY is not set."), StartsWith("broken: DISPLAY is not set.")));
    EXPECT_THAT(report.remedy("display"), HasSubstr("xwayland"));
    if (report.text("display").starts_with("limited")) {
        EXPECT_THAT(report.text("selection"), StartsWith("ok: "));
    }
}

TEST_F(SessionChecks, ABusWithoutOurServicesSaysSo)
{
    const Report report = examine();
    EXPECT_EQ(report.exitStatus, 3);
    EXPECT_THAT(report.text("session-bus"), StartsWith("ok: "));
    EXPECT_THAT(report.text("counting-service"), StartsWith("broken: "));
    EXPECT_THAT(report.remedy("counting-service"),
        HasSubstr("does not know the service Brisklane.QBYServiceProviderXPC"));
    EXPECT_THAT(report.text("windows"), StartsWith("broken: "));
    EXPECT_THAT(
        report.remedy("windows"), HasSubstr("does not know the service com.quillbay.ServiceProvider"));
}

TEST_F(SessionChecks, AServiceThatDoesNotStartIsNotCalledUnknown)
{
    installService("com.quillbay.ServiceProvider", "no-such-program");
    const Report report = examine();
    EXPECT_THAT(report.text("windows"), StartsWith("broken: "));
    EXPECT_THAT(report.remedy("windows"), HasSubstr("journalctl"));
}

TEST_F(SessionChecks, ABusThatHangsIsReportedAndTheRestIsChecked)
{
    m_bus.suspend();
    const Report report = examine();
    EXPECT_THAT(report.text("session-bus"), HasSubstr("did not end within 2 seconds"));
    for (const char *const check : {"counting-service", "windows", "notifications", "tray"})
        EXPECT_THAT(report.text(check), StartsWith("note: The check"));
    EXPECT_THAT(report.text("selection"), StartsWith("ok: "));
    EXPECT_EQ(report.exitStatus, 3);
}

TEST_F(SessionChecks, AProgramThatKeepsTheSelectionToItselfIsANote)
{
    SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    owner.stop();
    EXPECT_THAT(examine().text("selection"), StartsWith("note: "));
}
