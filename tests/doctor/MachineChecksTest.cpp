// SPDX-License-Identifier: MIT
// What the command finds on machines without a desktop, each with another fault.
#include "preferences/QBYUserDefaultsController.h"
#include "tests/doctor/DoctorTest.h"
#include "tests/platform/printing/PrintServer.h"

#include <QDir>
#include <QFileInfo>

using ::testing::HasSubstr;
using ::testing::StartsWith;

namespace {

class MachineChecks : public DoctorTest { };

} // namespace

TEST_F(MachineChecks, AHealthyMachineHasNoFault)
{
    setLocale("C.UTF-8"); // the only one that every machine has
    const Report report = examine();
    for (const char *const check : {"versions", "preferences", "sandbox", "fonts", "watching"})
        EXPECT_THAT(report.text(check), StartsWith("ok: "));
    EXPECT_THAT(report.text("locale"), StartsWith("note: "));
    EXPECT_THAT(report.text("paper"), StartsWith("note: There is no printer"));
}

TEST_F(MachineChecks, TheRulesOfTheLocaleAreNamedWhetherItIsInstalledOrNot)
{
    setLocale("en_US.UTF-8");
    EXPECT_THAT(
        examine().text("locale"), HasSubstr("en_US. A letter that stands alone counts as a word only if"));
}

TEST_F(MachineChecks, WithoutBusAndDisplayTheRestIsLeftOutAndTheStatusIsThree)
{
    const Report report = examine();
    EXPECT_EQ(report.exitStatus, 3);
    EXPECT_EQ(report.severity, QStringLiteral("broken"));
    EXPECT_THAT(report.text("display"), StartsWith("broken: There is no display"));
    EXPECT_THAT(report.text("session-bus"), StartsWith("broken: There is no session bus"));
    for (const char *const check :
        {"counting-service", "windows", "staying-above", "selection", "notifications", "tray"})
        EXPECT_THAT(report.text(check), StartsWith("note: The check"));
}

TEST_F(MachineChecks, AStaleDisplayIsNamed)
{
    qputenv("DISPLAY", ":4711");
    EXPECT_THAT(examine().text("display"), StartsWith("broken: DISPLAY names the X display :4711"));
}

TEST_F(MachineChecks, NothingIsWritten)
{
    examine();
    EXPECT_TRUE(QDir(world().configuration()).isEmpty());
    EXPECT_TRUE(QDir(world().data()).isEmpty());
}

TEST_F(MachineChecks, TheTextIsForPeopleAndNamesNoHome)
{
    const ChildProcess::Outcome outcome = quillbay({"doctor"});
    EXPECT_EQ(outcome.exitStatus, 3);
    EXPECT_THAT(outcome.output.toStdString(), HasSubstr("~/.config/quillbay/"));
    EXPECT_FALSE(outcome.output.contains(QFile::encodeName(world().home())));
    EXPECT_FALSE(outcome.output.contains('\x1B'));
    EXPECT_TRUE(outcome.output.endsWith("\nSomething that Quillbay needs does not work; see above.\n"));
}

TEST_F(MachineChecks, WrongUsageHasItsOwnStatus)
{
    EXPECT_EQ(quillbay({"doctor", "file"}).exitStatus, 2);
    EXPECT_EQ(quillbay({"doctor", "--nonsense"}).exitStatus, 2);
    EXPECT_EQ(quillbay({"doctor", "--help"}).exitStatus, 0);
}

TEST_F(MachineChecks, AMissingLocaleIsNamedWithItsRemedy)
{
    qputenv("LANG", "tlh_XX.UTF-8");
    const Report report = examine();
    EXPECT_THAT(report.text("locale"), StartsWith("limited: The locale tlh_XX.UTF-8 is not installed"));
    EXPECT_THAT(report.remedy("locale"), HasSubstr("dpkg-reconfigure locales"));
    qputenv("LANG", "C");
    EXPECT_THAT(examine().text("locale"), StartsWith("note: "));
}

TEST_F(MachineChecks, DamagedPreferencesAreMendedByTheirRemedy)
{
    const QString path = QFile::decodeName(QBYUserDefaultsController::sharedUserDefaults().path());
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no database");
    file.close();
    const Report report = examine();
    EXPECT_THAT(report.text("preferences"), StartsWith("broken: The preferences in ~/"));
    EXPECT_THAT(report.remedy("preferences"), HasSubstr("\"quillbay preferences --reset-all\""));
    EXPECT_EQ(quillbay({"preferences", "--reset-all"}).exitStatus, 0);
    EXPECT_THAT(examine().text("preferences"), StartsWith("ok: "));
}

TEST_F(MachineChecks, PreferencesThatCannotBeStoredAreALimitation)
{
    ChildProcess doctor(productProgram(QStringLiteral("quillbay")));
    doctor.asOtherUser().withVariable("XDG_CONFIG_HOME", "/proc/no/such");
    EXPECT_THAT(examine(std::move(doctor), {}).text("preferences"),
        StartsWith("limited: Preferences cannot be stored in /proc/no/such/"));
}

TEST_F(MachineChecks, MarginsWithoutAColumnAreMendedByTheirRemedy)
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    QBYUserDefaultsController::setLeftMarginForPaperSizeLineMeasuring(30);
    const Report report = examine();
    EXPECT_THAT(report.text("paper"), HasSubstr("The margins leave no width for text"));
    EXPECT_THAT(report.text("paper"), StartsWith("limited: "));
    EXPECT_THAT(
        report.remedy("paper"), HasSubstr("\"quillbay preferences --reset left-margin right-margin\""));
    EXPECT_EQ(quillbay({"preferences", "--reset", "left-margin", "right-margin"}).exitStatus, 0);
    EXPECT_THAT(examine().text("paper"), StartsWith("note: "));
}

TEST_F(MachineChecks, APrinterThatHangsIsALimitation)
{
    const SilentPrintServer server;
    EXPECT_THAT(examine().text("paper"), StartsWith("limited: The default printer does not answer"));
}

TEST_F(MachineChecks, FontsOtherThanHelveticaAreALimitation)
{
    const auto withFonts = [](const QByteArray &folder) {
        qputenv("FONTCONFIG_FILE",
            QFile::encodeName(writeFile(QStringLiteral("fonts.conf"),
                "<?xml version=\"1.0\"?><fontconfig>" + folder + "</fontconfig>")));
        return examine().text("fonts");
    };
    EXPECT_THAT(withFonts(""), StartsWith("limited: There is no usable font"));
    const char dejaVu[] = "/usr/share/fonts/truetype/dejavu";
    SKIP_WITHOUT_PACKAGE(QFileInfo::exists(QString::fromLatin1(dejaVu)), "fonts-dejavu-core");
    EXPECT_THAT(withFonts(QByteArray("<dir>") + dejaVu + "</dir>"),
        StartsWith("limited: Plain text is measured with /usr/share/fonts/truetype/dejavu/"));
}

TEST_F(MachineChecks, MissingPartsOfTheSandboxAreNamed)
{
    const QString kernel = testProgram(QStringLiteral("older_kernel"));
    EXPECT_THAT(examineThrough(kernel, {"landlock"}).text("sandbox"), HasSubstr("limited: "));
    EXPECT_THAT(examineThrough(kernel, {"seccomp"}).text("sandbox"),
        HasSubstr("broken: Documents other than plain text cannot be read"));
}

TEST_F(MachineChecks, ExhaustedWatchesAreNamedWithTheSettingThatRaisesThem)
{
    const char *const script = "echo 0 > /proc/sys/user/max_inotify_instances && exec \"$0\" \"$@\"";
    const auto inNamespace = QByteArrayList{"--user", "--map-root-user", "/bin/sh", "-c", script};
    ChildProcess probe(QStringLiteral("/usr/bin/unshare"));
    if (probe.run(inNamespace + QByteArrayList{"/bin/true"}).exitStatus != 0)
        GTEST_SKIP() << "the system allows no user namespace";
    const Report report = examineThrough(QStringLiteral("/usr/bin/unshare"), inNamespace);
    EXPECT_THAT(report.text("watching"), HasSubstr("no instance of inotify is left"));
    EXPECT_THAT(report.text("watching"), StartsWith("limited: "));
    EXPECT_THAT(report.remedy("watching"), HasSubstr("\"sudo sysctl fs.inotify.max_user_instances="));
}

TEST_F(MachineChecks, ThatWatchesAreInUseIsCounted)
{
    const auto used = [](const Report &report) {
        const QString text = QString::fromStdString(report.text("watching"));
        return text.section(QStringLiteral("At least "), 1).section(u' ', 0, 0).toLongLong();
    };
    // Our own, besides those of other programs, which come and go.
    ChildProcess watcher(QStringLiteral("/usr/bin/tail"));
    const QByteArray name = file("followed", "One.\n");
    watcher.start({"-f", name});
    EXPECT_EQ(watcher.readLine(), QByteArray("One."));
    EXPECT_GE(used(examine()), 1);
}

TEST_F(MachineChecks, FileManagersWithoutOurEntriesAreNamed)
{
    const auto withPrograms = [](const QByteArrayList &programs) {
        const QByteArray folder = QFile::encodeName(world().root()) + "/files/programs";
        QDir().mkpath(QFile::decodeName(folder));
        for (const QByteArray &name : programs) {
            QFile program(QFile::decodeName(file(("programs/" + name).constData(), "#!/bin/sh\n")));
            EXPECT_TRUE(program.setPermissions(program.permissions() | QFile::ExeOwner));
        }
        qputenv("PATH", folder);
        return examine();
    };
    EXPECT_THAT(withPrograms({}).text("file-managers"), StartsWith("note: No file manager is installed"));
    const Report without = withPrograms({"nemo", "pcmanfm"});
    EXPECT_THAT(without.text("file-managers"), StartsWith("note: The menus of these"));
    EXPECT_THAT(without.text("file-managers"), HasSubstr("no entries of Quillbay: Nemo and PCManFM."));
    EXPECT_THAT(without.remedy("file-managers"), HasSubstr("Install the Debian package"));
    for (const char *const name :
        {"nemo/actions/quillbay-watch.nemo_action", "file-manager/actions/quillbay-watch.desktop"}) {
        const QString path = world().data() + u'/' + QString::fromLatin1(name);
        QDir().mkpath(QFileInfo(path).path());
        EXPECT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    }
    EXPECT_EQ(examine().text("file-managers"),
        "ok: The menus of these file managers have entries of Quillbay: Nemo and PCManFM.");
}

TEST_F(MachineChecks, AMissingVoiceIsALimitationOnlyIfCountsAreToBeSpoken)
{
    if (QFileInfo::exists(QStringLiteral("/usr/bin/say")))
        GTEST_SKIP() << "there is a /usr/bin/say here";
    EXPECT_THAT(examine().text("speech"), StartsWith("note: "));
    QBYUserDefaultsController::setSayWordCountOutLoudOnSaveInWatchFileMode(true);
    EXPECT_THAT(examine().text("speech"), StartsWith("limited: "));
}
