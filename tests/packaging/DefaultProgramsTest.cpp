// SPDX-License-Identifier: MIT
// What an installation means for the programs that open documents, on a desktop without a list of defaults.
#include "documents/DocumentKind.h"
#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QRegularExpression>
#include <QStandardPaths>

using ::testing::Contains;
using ::testing::Not;

namespace {

/// A share folder of its own stands for /usr/share.
class DefaultPrograms : public QuillbayTest {
protected:
    void SetUp() override
    {
        for (const char *const program :
            {"gio", "xdg-mime", "update-desktop-database", "update-mime-database"}) {
            SKIP_WITHOUT_PACKAGE(!QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty(),
                "libglib2.0-bin, xdg-utils, desktop-file-utils or shared-mime-info");
        }
        QDir().mkpath(share() + QStringLiteral("/applications"));
        QDir().mkpath(world().root() + QStringLiteral("/types"));
        QFile::link(QStringLiteral("/usr/share/mime"), world().root() + QStringLiteral("/types/mime"));
        updateDatabases();
    }

    static QString prefix() { return world().root() + QStringLiteral("/usr"); }
    static QString share() { return prefix() + QStringLiteral("/share"); }

    static void install()
    {
        const ChildProcess::Outcome outcome =
            ChildProcess(QStringLiteral(CMAKE))
                .run({"--install", BUILD_FOLDER, "--prefix", QFile::encodeName(prefix())});
        ASSERT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
        updateDatabases();
    }

    static void updateDatabases()
    {
        ChildProcess(QStringLiteral("update-desktop-database"))
            .run({QFile::encodeName(share()) + "/applications"});
        ChildProcess types(QStringLiteral("update-mime-database"));
        types.withVariable("PKGSYSTEM_ENABLE_FSYNC", "0").run({QFile::encodeName(share()) + "/mime"});
    }

    /// A program that opens documents, under the name of its desktop file.
    static void addProgram(const char *name, const char *types)
    {
        QFile file(share() + QStringLiteral("/applications/") + QString::fromLatin1(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(QByteArray("[Desktop Entry]\nType=Application\nName=") + name
            + "\nExec=true %F\nMimeType=" + types + "\n");
    }

    static QByteArray run(const char *program, const QByteArrayList &words)
    {
        ChildProcess process(QString::fromLatin1(program));
        process.withVariable(
            "XDG_DATA_DIRS", QFile::encodeName(share() + u':' + world().root() + QStringLiteral("/types")));
        return process.withVariable("LC_ALL", "C.UTF-8").run(words).output;
    }

    /// Of each type that is counted and of some that are not, as the desktop's two tools answer.
    static QByteArray defaults()
    {
        QByteArray answers;
        QStringList types{QStringLiteral("text/x-csrc"), QStringLiteral("image/png"),
            QStringLiteral("inode/directory"), QStringLiteral("application/octet-stream")};
        for (quint32 kind = 0; kind <= static_cast<quint32>(lastDocumentKind); ++kind)
            types += mimeTypes(static_cast<DocumentKind>(kind)).mid(0, 1);
        for (const QString &type : types)
            answers += run("gio", {"mime", type.toLatin1()}).split('\n').first() + '\n';
        for (const char *const type : {"text/plain", "application/rtf", "application/epub+zip"})
            answers += QByteArray(type) + ' ' + run("xdg-mime", {"query", "default", type}) + '\n';
        return answers;
    }
};

} // namespace

TEST_F(DefaultPrograms, DoNotChangeWhereNoOtherProgramIsInstalled)
{
    const QByteArray before = defaults();
    install();
    EXPECT_EQ(defaults(), before);
}

TEST_F(DefaultPrograms, DoNotChangeBesideOtherPrograms)
{
    // Names before and after ours in the order of the alphabet.
    addProgram("calculating-viewer.desktop", "application/epub+zip;");
    addProgram("org.example.Editor.desktop", "text/plain;text/markdown;");
    addProgram("org.example.Browser.desktop", "text/html;application/xhtml+xml;application/pdf;");
    addProgram("writing-suite.desktop",
        "application/rtf;application/vnd.oasis.opendocument.text;"
        "application/vnd.openxmlformats-officedocument.wordprocessingml.document;");
    updateDatabases();
    const QByteArray before = defaults();
    EXPECT_TRUE(before.contains("org.example.Editor.desktop"));
    EXPECT_TRUE(before.contains("writing-suite.desktop"));
    install();
    EXPECT_EQ(defaults(), before);
}

TEST_F(DefaultPrograms, QuillbayIsAmongTheOthersOfOpenWith)
{
    install();
    // What the dialogs "Open With" list: programs that are shown in menus and take files.
    const QByteArray script = "from gi.repository import Gio\n"
                              "for program in Gio.AppInfo.get_all():\n"
                              "    if program.should_show() and program.supports_files():\n"
                              "        print(program.get_id())\n";
    const QByteArrayList programs = run("/usr/bin/python3", {"-c", script}).split('\n');
    EXPECT_THAT(programs, Contains("com.quillbay.Watch.desktop"));
    EXPECT_THAT(programs, Contains("com.quillbay.Quillbay.desktop"));
}

TEST_F(DefaultPrograms, DocumentsOfMoreTypesAreKnown)
{
    install();
    const auto typeOf = [](const char *name) {
        QFile file(world().root() + u'/' + QString::fromLatin1(name));
        EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write("Text.\n") > 0);
        file.close();
        const QByteArray info =
            run("gio", {"info", "--attributes=standard::content-type", QFile::encodeName(file.fileName())});
        return info.trimmed().split(' ').last();
    };
    EXPECT_EQ(typeOf("play.fountain"), "text/x-fountain");
    EXPECT_EQ(typeOf("manual.adoc"), "text/asciidoc");
    EXPECT_EQ(typeOf("letter.rtfd"), "application/x-flat-rtfd");
}
