// SPDX-License-Identifier: MIT
// What "cmake --install" gives: whether it is complete, and whether it works as it lies there.
#include "documents/DocumentKind.h"
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/pasteboard/SelectionOwner.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QXmlStreamReader>

#include <csignal>

using ::testing::IsEmpty;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

namespace {

class Install : public QuillbayTest {
protected:
    /// As a user installs it for himself: the bus looks there.
    [[nodiscard]] static QString prefix() { return world().home() + QStringLiteral("/.local"); }

    static void install(const QByteArrayList &words, const QByteArray &destination = {})
    {
        ChildProcess process(QStringLiteral(CMAKE));
        process.withVariable("DESTDIR", destination);
        const ChildProcess::Outcome outcome =
            process.run(QByteArrayList{"--install", QFile::encodeName(QStringLiteral(BUILD_FOLDER))} + words);
        ASSERT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
    }

    static QStringList filesBelow(const QString &folder)
    {
        QStringList files;
        for (QDirIterator entry(folder, QDir::Files, QDirIterator::Subdirectories); entry.hasNext();)
            files.append(QDir(folder).relativeFilePath(entry.next()));
        return files;
    }

    /// What stands behind "Exec=" in the file, a command on each line.
    static QStringList commandsIn(const QString &path)
    {
        QStringList commands;
        static const QRegularExpression exec(
            QStringLiteral("^Exec(?:Start)?=(.*)$"), QRegularExpression::MultilineOption);
        for (const auto &match : exec.globalMatch(QString::fromUtf8(readFile(path))))
            commands.append(match.captured(1));
        return commands;
    }

    /// Of a command, with or without quotes.
    static QString programOf(const QString &command)
    {
        return command.startsWith(u'"') ? command.section(u'"', 1, 1) : command.section(u' ', 0, 0);
    }

    static QString desktopFile(const QString &name = QStringLiteral("Quillbay"))
    {
        return prefix() + QStringLiteral("/share/applications/com.quillbay.%1.desktop").arg(name);
    }
};

const QStringList filesWithCommands{QStringLiteral("share/applications/com.quillbay.Quillbay.desktop"),
    QStringLiteral("share/applications/com.quillbay.Watch.desktop"),
    QStringLiteral("share/dbus-1/services/Brisklane.QBYServiceProviderXPC.service"),
    QStringLiteral("share/dbus-1/services/com.quillbay.ServiceProvider.service"),
    QStringLiteral("share/file-manager/actions/quillbay-count.desktop"),
    QStringLiteral("share/file-manager/actions/quillbay-watch.desktop"),
    QStringLiteral("share/kio/servicemenus/com.quillbay.Quillbay.desktop"),
    QStringLiteral("share/nemo/actions/quillbay-count.nemo_action"),
    QStringLiteral("share/nemo/actions/quillbay-watch.nemo_action"),
    QStringLiteral("share/systemd/user/quillbay-counting-service.service")};

const QRegularExpression madeFromTheManual(QStringLiteral("^(man|bash-completion|zsh|fish)/"));

} // namespace

TEST_F(Install, IsComplete)
{
    install({"--prefix", QFile::encodeName(prefix())});
    QStringList expected = filesWithCommands
        + QStringList{QStringLiteral("bin/quillbay"), QStringLiteral("bin/quillbay-desk"),
            QStringLiteral("libexec/quillbay-clipboard-keeper"),
            QStringLiteral("libexec/quillbay-counting-service"),
            QStringLiteral("libexec/quillbay-document-reader"), QStringLiteral("libexec/quillbay-say"),
            QStringLiteral("libexec/quillbay-service-provider"),
            QStringLiteral("share/dbus-1/interfaces/com.quillbay.ServiceProvider.xml"),
            QStringLiteral("share/icons/hicolor/scalable/apps/com.quillbay.Quillbay.svg"),
            QStringLiteral("share/icons/hicolor/symbolic/apps/com.quillbay.Quillbay-symbolic.svg"),
            QStringLiteral("share/metainfo/com.quillbay.Quillbay.metainfo.xml"),
            QStringLiteral("share/mime/packages/com.quillbay.Quillbay.xml")};
    for (const QString &file : filesBelow(QStringLiteral(BUILD_FOLDER "/share"))) {
        if (madeFromTheManual.match(file).hasMatch())
            expected.append(QStringLiteral("share/") + file);
    }
    EXPECT_TRUE(expected.contains(QStringLiteral("share/man/man1/quillbay-count.1")));
    // Depend on what is installed here: there is a module for each file manager whose headers were found.
    QStringList installed =
        filesBelow(prefix()).filter(QRegularExpression(QStringLiteral("^(?!lib/.*/libquillbay-)")));
    expected.sort();
    installed.sort();
    EXPECT_EQ(installed, expected);
}

TEST_F(Install, NamesTheProgramsWhereverItIsInstalled)
{
    install({"--prefix", QFile::encodeName(prefix())});
    for (const QString &file : filesWithCommands) {
        const QStringList commands = commandsIn(prefix() + u'/' + file);
        EXPECT_FALSE(commands.isEmpty()) << file.toStdString();
        for (const QString &command : commands) {
            EXPECT_THAT(programOf(command).toStdString(), StartsWith(prefix().toStdString()));
            EXPECT_TRUE(QFileInfo(programOf(command)).isExecutable()) << command.toStdString();
        }
    }
}

TEST_F(Install, OffersItsMenusForTheTypesOfAllDocuments)
{
    install({"--prefix", QFile::encodeName(prefix())});
    const QStringList files{QStringLiteral("file-manager/actions/quillbay-count.desktop"),
        QStringLiteral("file-manager/actions/quillbay-watch.desktop"),
        QStringLiteral("kio/servicemenus/com.quillbay.Quillbay.desktop"),
        QStringLiteral("nemo/actions/quillbay-count.nemo_action"),
        QStringLiteral("nemo/actions/quillbay-watch.nemo_action")};
    for (const QString &file : files) {
        const QByteArray content = readFile(prefix() + QStringLiteral("/share/") + file);
        for (quint32 kind = 1; kind <= static_cast<quint32>(lastDocumentKind); ++kind) {
            for (const QString &type : mimeTypes(static_cast<DocumentKind>(kind)))
                EXPECT_TRUE(content.contains(type.toUtf8() + ';')) << (file + u' ' + type).toStdString();
        }
    }
}

TEST_F(Install, IntoTheRootOfAPackageNamesTheProgramsWhereTheyWillLie)
{
    const QString root = world().root() + QStringLiteral("/package");
    install({"--prefix", "/opt/quill bay"}, QFile::encodeName(root));
    const QString installed = root + QStringLiteral("/opt/quill bay/");
    EXPECT_TRUE(QFileInfo::exists(installed + QStringLiteral("bin/quillbay")));
    EXPECT_EQ(commandsIn(installed + filesWithCommands[0])[0],
        QStringLiteral("\"/opt/quill bay/bin/quillbay-desk\" %f"));
}

TEST_F(Install, HasValidDesktopFilesForTheMainWindowAndTheCommandQuillbay)
{
    install({"--prefix", QFile::encodeName(prefix())});
    for (const QString &file : {desktopFile(), desktopFile(QStringLiteral("Watch"))}) {
        const ChildProcess::Outcome outcome =
            ChildProcess(QStringLiteral(DESKTOP_FILE_VALIDATE)).run({QFile::encodeName(file)});
        EXPECT_EQ(outcome.exitStatus, 0);
        EXPECT_EQ(outcome.output + outcome.errors, QByteArray());
    }
    const QString command = u'"' + prefix() + QStringLiteral("/bin/quillbay\" ");
    const QString desk = u'"' + prefix() + QStringLiteral("/bin/quillbay-desk\" ");
    EXPECT_THAT(commandsIn(desktopFile()),
        UnorderedElementsAre(desk + QStringLiteral("%f"), command + QStringLiteral("selection"),
            command + QStringLiteral("selection --clipboard"),
            command + QStringLiteral("watch --clipboard")));
    EXPECT_THAT(commandsIn(desktopFile(QStringLiteral("Watch"))),
        UnorderedElementsAre(desk + QStringLiteral("--watch %F")));
}

TEST_F(Install, HasValidDataForSoftwareCentres)
{
    SKIP_WITHOUT_PACKAGE(
        !QStandardPaths::findExecutable(QStringLiteral("appstreamcli")).isEmpty(), "appstream");
    install({"--prefix", QFile::encodeName(prefix())});
    const ChildProcess::Outcome outcome =
        ChildProcess(QStringLiteral("appstreamcli"))
            .run({"validate", "--no-net",
                QFile::encodeName(prefix()) + "/share/metainfo/com.quillbay.Quillbay.metainfo.xml"});
    EXPECT_EQ(outcome.exitStatus, 0) << (outcome.output + outcome.errors).toStdString();
}

TEST_F(Install, HasIconsThatAreWellFormed)
{
    install({"--prefix", QFile::encodeName(prefix())});
    EXPECT_TRUE(readFile(desktopFile()).contains("\nIcon=com.quillbay.Quillbay\n"));
    for (const QString &name : filesBelow(prefix()).filter(QStringLiteral(".svg"))) {
        QXmlStreamReader icon(readFile(prefix() + u'/' + name));
        EXPECT_TRUE(icon.readNextStartElement());
        EXPECT_EQ(icon.name(), QStringLiteral("svg"));
        while (!icon.atEnd())
            icon.readNext();
        EXPECT_EQ(icon.errorString(), QString()) << name.toStdString();
    }
}

TEST_F(Install, CountsAPdfFile)
{
    install({"--prefix", QFile::encodeName(prefix())});
    const QByteArray file = QFile::encodeName(
        writeFile(QStringLiteral("paper.pdf"), PdfWriter{{"One sentence of five words."}}.bytes()));
    const QString program = prefix() + QStringLiteral("/bin/quillbay");
    const ChildProcess::Outcome outcome = ChildProcess(program).run({"count", "--tsv", file});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors, QByteArray());
    EXPECT_TRUE(outcome.output.contains("5\t23\t29\t")) << outcome.output.constData();
    ASSERT_TRUE(QFile::remove(prefix() + QStringLiteral("/libexec/quillbay-document-reader")));
    const ChildProcess::Outcome without = ChildProcess(program).run({"count", "--tsv", file});
    EXPECT_EQ(without.exitStatus, 1);
    EXPECT_EQ(without.errors,
        "quillbay: " + file
            + ": needs the program quillbay-document-reader, which is missing or does not start; "
              "reinstall Quillbay\n");
}

TEST_F(Install, HasQtPdfInOneProgramAlone)
{
    install({"--prefix", QFile::encodeName(prefix())});
    QStringList programs;
    for (const QString &file : filesBelow(prefix())) {
        if (!file.startsWith(QStringLiteral("bin/")) && !file.startsWith(QStringLiteral("libexec/")))
            continue;
        ChildProcess program(prefix() + u'/' + file);
        // The dynamic linker's list of what it loads, in place of a run.
        program.withVariable("LD_TRACE_LOADED_OBJECTS", "1");
        if (program.run({}).output.contains("libQt6Pdf"))
            programs.append(file);
    }
    EXPECT_EQ(programs, QStringList{QStringLiteral("libexec/quillbay-document-reader")});
}

TEST_F(Install, OpensAWindowForTheSelectedText)
{
    SessionBus::start();
    TestDisplay::start();
    install({"--prefix", QFile::encodeName(prefix())});
    const QDBusConnection bus = QDBusConnection::sessionBus();
    // The bus itself looks at the times of the files, in seconds.
    bus.call(QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("/org/freedesktop/DBus"), QStringLiteral("org.freedesktop.DBus"),
        QStringLiteral("ReloadConfig")));
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "One sentence of five words."}});
    const ChildProcess::Outcome outcome =
        ChildProcess(prefix() + QStringLiteral("/bin/quillbay")).run({"selection"});
    EXPECT_EQ(outcome.exitStatus, 0);
    EXPECT_EQ(outcome.errors, QByteArray());
    const QString service = QStringLiteral("com.quillbay.ServiceProvider");
    const uint provider = bus.interface()->servicePid(service);
    const QByteArray words = readFile(QStringLiteral("/proc/%1/cmdline").arg(provider));
    EXPECT_EQ(QString::fromLocal8Bit(words.split('\0').first()),
        prefix() + QStringLiteral("/libexec/quillbay-service-provider"));
    // The window has the focus; Escape closes it, and the program leaves with its last window.
    EXPECT_TRUE(waitUntil([&] {
        TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("Escape")});
        return !bus.interface()->isServiceRegistered(service);
    }));
}
