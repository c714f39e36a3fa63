// SPDX-License-Identifier: MIT
// Faults of the file of a suite and of its folder.
#include "platform/defaults/UserDefaults.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>

#include <cerrno>
#include <csignal>
#include <sched.h>
#include <sqlite3.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class SuiteFaultTest : public QuillbayTest {
protected:
    static QString folder() { return world().configuration() + QStringLiteral("/quillbay"); }
    static QString file() { return folder() + QStringLiteral("/suite.sqlite3"); }
    static QStringList asideFiles()
    {
        return QDir(folder()).entryList({QStringLiteral("*.broken-*")}, QDir::AllEntries | QDir::System);
    }

    static void overwrite(const QByteArray &contents)
    {
        QDir().mkpath(folder());
        QFile broken(file());
        ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write(contents) == contents.size());
    }

    static void changeMode(const QString &path, mode_t mode)
    {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);
    }

    static void runOnFile(const char *statements)
    {
        QDir().mkpath(folder());
        sqlite3 *database = nullptr;
        ASSERT_EQ(sqlite3_open(QFile::encodeName(file()).constData(), &database), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(database, statements, nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(database);
        sqlite3_close(database);
    }

    // The values are unreadable with one line in the log; the next write works and keeps the old file.
    void expectBrokenAndPutAside(const QByteArray &brokenContents)
    {
        const qsizetype before = m_log.messages().size();
        for (int i = 0; i < 10; ++i)
            EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
        EXPECT_EQ(m_log.messages().size() - before, 1);
        EXPECT_EQ(readFile(file()), brokenContents) << "reading must change nothing";
        EXPECT_TRUE(m_defaults.setObject(qint64{2}, m_key));
        EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
        ASSERT_THAT(asideFiles(), SizeIs(1));
        EXPECT_EQ(readFile(folder() + u'/' + asideFiles().front()), brokenContents);
        EXPECT_EQ(m_log.messages().size() - before, 2);
        EXPECT_EQ(UserDefaults(QStringLiteral("suite")).integerForKey(m_key), 2);
    }

    // A second process that uses the suite; a test may restrict it before it starts.
    static ChildProcess::Outcome talk(ChildProcess &talker, const QByteArray &requests)
    {
        return talker.run({"suite"}, requests);
    }

    const QString m_key = QStringLiteral("key");
    RecordingLogSink m_log;
    UserDefaults m_defaults{QStringLiteral("suite"), std::chrono::milliseconds(200)};
    UserDefaults m_other{QStringLiteral("suite")}; // opens the suite after the first
    ChildProcess m_talker{testProgram(QStringLiteral("suite_talker"))};
};

TEST_F(SuiteFaultTest, AFileThatIsNoDatabaseReadsAsEmptyAndIsPutAsideByTheNextWrite)
{
    overwrite(
        "this is no database, and longer than the header of one would be: 0123456789 0123456789 0123456789");
    expectBrokenAndPutAside(readFile(file()));
    EXPECT_EQ(m_log.messages().front(),
        QStringLiteral("Preference suite suite cannot be read: file is not a database"));
}

TEST_F(SuiteFaultTest, AnotherProgramsDatabaseReadsAsEmptyAndIsPutAsideByTheNextWrite)
{
    runOnFile("CREATE TABLE preference (key TEXT PRIMARY KEY, type TEXT, value TEXT);"
              "INSERT INTO preference VALUES ('key', 'integer', 1)");
    expectBrokenAndPutAside(readFile(file()));
}

TEST_F(SuiteFaultTest, ASuiteWithoutItsTableIsPutAside)
{
    m_defaults.setObject(qint64{1}, m_key);
    runOnFile("ALTER TABLE preference RENAME TO other");
    expectBrokenAndPutAside(readFile(file()));
}

TEST_F(SuiteFaultTest, ADamagedPageIsFoundWhenTheFileIsOpened)
{
    m_defaults.setObject(QString(60'000, u'x'), QStringLiteral("other"));
    m_defaults.setObject(qint64{1}, m_key);
    QByteArray damaged = readFile(file());
    ASSERT_GT(damaged.size(), 8192);
    damaged.replace(4096, 2048, QByteArray(2048, '\xee'));
    ASSERT_TRUE(QFile::remove(file()));
    overwrite(damaged);
    expectBrokenAndPutAside(damaged);
}

TEST_F(SuiteFaultTest, DamageToTheOpenFileIsFoundToo)
{
    m_defaults.setObject(qint64{1}, m_key);
    ASSERT_EQ(m_defaults.integerForKey(m_key), 1);
    overwrite(QByteArray(8192, '\xee')); // the same inode
    expectBrokenAndPutAside(QByteArray(8192, '\xee'));
}

TEST_F(SuiteFaultTest, ATruncatedFileIsPutAside)
{
    m_defaults.setObject(QString(60'000, u'x'), m_key);
    const QByteArray half = readFile(file()).first(20'480);
    overwrite(half);
    expectBrokenAndPutAside(half);
}

TEST_F(SuiteFaultTest, AFileLargerThanTheMaximumIsPutAsideUnread)
{
    m_defaults.setObject(qint64{1}, m_key);
    ASSERT_EQ(::truncate(QFile::encodeName(file()).constData(), off_t(1) << 40), 0);
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1) << "it is open and sound as far as this process knows";
    EXPECT_EQ(m_other.objectForKey(m_key), std::nullopt);
    EXPECT_TRUE(m_other.setObject(qint64{2}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
    EXPECT_THAT(asideFiles(), SizeIs(1));
}

TEST_F(SuiteFaultTest, TheJournalsOfABrokenFileArePutAsideWithIt)
{
    overwrite("");
    ASSERT_EQ(::truncate(QFile::encodeName(file()).constData(), off_t(1) << 40), 0);
    for (const char16_t *suffix : {u"-journal", u"-wal"}) {
        QFile companion(file() + QString::fromUtf16(suffix));
        ASSERT_TRUE(companion.open(QIODevice::WriteOnly) && companion.write("pages") > 0);
    }
    EXPECT_TRUE(m_defaults.setObject(qint64{2}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
    const QStringList kept = asideFiles();
    ASSERT_THAT(kept, SizeIs(3));
    EXPECT_EQ(kept.at(1), kept.at(0) + QStringLiteral("-journal"));
    EXPECT_EQ(kept.at(2), kept.at(0) + QStringLiteral("-wal"));
}

TEST_F(SuiteFaultTest, ASuiteNeverGrowsBeyondTheMaximumOfItsReaders)
{
    m_defaults.setObject(qint64{1}, m_key);
    std::vector<DefaultsEntry> tooMuch;
    for (int i = 0; i < 100; ++i) {
        tooMuch.push_back({QString::number(i), QString(UserDefaults::maxTextLength, QChar(u'\u20ac'))});
    }
    EXPECT_FALSE(m_defaults.setObjects(tooMuch));
    EXPECT_EQ(m_defaults.objectForKey(QStringLiteral("0")), std::nullopt);
    EXPECT_EQ(UserDefaults(QStringLiteral("suite")).integerForKey(m_key), 1);
    EXPECT_TRUE(m_defaults.setObject(qint64{2}, m_key));
    EXPECT_THAT(asideFiles(), IsEmpty());
}

TEST_F(SuiteFaultTest, AFolderOrPipeInTheFilesPlaceIsPutAside)
{
    ASSERT_TRUE(QDir().mkpath(file() + QStringLiteral("/within")));
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_TRUE(m_defaults.setObject(qint64{1}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
    ASSERT_TRUE(QFile::remove(file()));
    ASSERT_EQ(::mkfifo(QFile::encodeName(file()).constData(), 0600), 0);
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_TRUE(m_defaults.setObject(qint64{2}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
    EXPECT_THAT(asideFiles(), SizeIs(2));
}

TEST_F(SuiteFaultTest, OfASymbolicLinkTheBrokenTargetIsPutAsideAndTheLinkStays)
{
    const QString real = writeFile(QStringLiteral("dotfiles/suite.sqlite3"), QByteArray(4096, '?'));
    ASSERT_TRUE(QDir().mkpath(folder()) && QFile::link(real, file()));
    EXPECT_TRUE(m_defaults.setObject(qint64{2}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
    EXPECT_EQ(QFile::symLinkTarget(file()), real);
    EXPECT_THAT(
        QDir(world().root() + QStringLiteral("/files/dotfiles")).entryList({QStringLiteral("*.broken-*")}),
        SizeIs(1));
}

TEST_F(SuiteFaultTest, AnEmptyFileIsAnEmptySuite)
{
    overwrite("");
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_TRUE(m_defaults.setObject(qint64{1}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
    EXPECT_THAT(m_log.messages(), IsEmpty());
    EXPECT_THAT(asideFiles(), IsEmpty());
}

TEST_F(SuiteFaultTest, EachEpisodeOfAFaultIsLoggedOnce)
{
    for (int episode = 1; episode <= 3; ++episode) {
        m_defaults.setObject(qint64{1}, m_key);
        const QByteArray sound = readFile(file());
        const qsizetype before = m_log.messages().size();
        overwrite(QByteArray(4096, '?'));
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
        overwrite(sound);
        EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
        EXPECT_EQ(m_log.messages().size() - before, 1) << "episode " << episode;
    }
}

TEST_F(SuiteFaultTest, HandWrittenValuesOfNoKindOrBeyondTheLimitsReadAsAbsent)
{
    m_defaults.setObject(qint64{1}, m_key);
    runOnFile(
        "INSERT INTO preference VALUES ('blob', 'text', x'00ff'), ('huge', 'text', hex(zeroblob(1000000))),"
        " ('odd', 'boolean', 'YES')");
    for (const UserDefaults *defaults : {&m_defaults, &m_other}) {
        EXPECT_FALSE(defaults->objectForKey(QStringLiteral("blob")));
        EXPECT_FALSE(defaults->objectForKey(QStringLiteral("huge")));
    }
    EXPECT_TRUE(m_defaults.boolForKey(QStringLiteral("odd")));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
    EXPECT_TRUE(m_defaults.setObject(qint64{2}, m_key));
    EXPECT_THAT(asideFiles(), IsEmpty());
}

TEST_F(SuiteFaultTest, ADeletedFileReadsAsEmptyAndIsCreatedByTheNextWrite)
{
    m_defaults.setObject(qint64{1}, m_key);
    ASSERT_TRUE(QFile::remove(file()));
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_TRUE(m_defaults.setObject(qint64{2}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
    EXPECT_THAT(m_log.messages(), IsEmpty());
}

TEST_F(SuiteFaultTest, AFileThatReplacesTheOpenOneIsReadAtOnce)
{
    UserDefaults other(QStringLiteral("other"));
    other.setObject(qint64{7}, m_key);
    m_defaults.setObject(qint64{1}, m_key);
    ASSERT_EQ(::rename(QFile::encodeName(folder() + QStringLiteral("/other.sqlite3")).constData(),
                  QFile::encodeName(file()).constData()),
        0);
    EXPECT_EQ(m_defaults.integerForKey(m_key), 7);
    EXPECT_TRUE(m_defaults.setObject(qint64{8}, m_key));
    EXPECT_EQ(UserDefaults(QStringLiteral("suite")).integerForKey(m_key), 8);
}

TEST_F(SuiteFaultTest, AFileInPlaceOfTheFolderLeavesValuesAbsentAndIsNotTouched)
{
    QFile inTheWay(folder());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    inTheWay.close();
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
        EXPECT_FALSE(m_defaults.setObject(qint64{1}, m_key));
    }
    EXPECT_TRUE(QFileInfo(folder()).isFile());
    EXPECT_THAT(m_log.messages(),
        ElementsAre(QStringLiteral("Preference suite suite cannot be read: Not a directory")));
    ASSERT_TRUE(QFile::remove(folder()));
    EXPECT_TRUE(m_defaults.setObject(qint64{1}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
}

TEST_F(SuiteFaultTest, AFileInPlaceOfTheWholeConfigurationFolderLeavesValuesAbsent)
{
    ASSERT_TRUE(QDir(world().configuration()).removeRecursively());
    QFile inTheWay(world().configuration());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_FALSE(m_defaults.setObject(qint64{1}, m_key));
    EXPECT_THAT(m_log.messages(), SizeIs(1));
}

TEST_F(SuiteFaultTest, InAReadOnlyFolderValuesAreReadAndStayAsTheyAre)
{
    m_defaults.setObject(qint64{1}, m_key);
    changeMode(file(), 0644);
    changeMode(folder(), 0555);
    const auto outcome =
        talk(m_talker.asOtherUser(), "get key\nset key 2\nget key\nset key 3\nget key\nset new 4\nget new\n");
    changeMode(folder(), 0700);
    EXPECT_EQ(outcome.output, QByteArray("ready\n1\nfailed\n1\nfailed\n1\nfailed\nabsent\n"));
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
    EXPECT_THAT(outcome.errors.toStdString(), HasSubstr("cannot be written"));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
}

TEST_F(SuiteFaultTest, AReadOnlyFileIsReadAndStaysAsItIs)
{
    m_defaults.setObject(qint64{1}, m_key);
    changeMode(file(), 0444);
    changeMode(folder(), 0777);
    const auto outcome = talk(m_talker.asOtherUser(), "get key\nset key 2\nget key\nset key 2\n");
    changeMode(folder(), 0700);
    EXPECT_EQ(outcome.output, QByteArray("ready\n1\nfailed\n1\nfailed\n"));
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
    EXPECT_THAT(asideFiles(), IsEmpty());
}

TEST_F(SuiteFaultTest, AFileThatMayNotBeReadIsAbsentAndNeverPutAside)
{
    m_defaults.setObject(qint64{1}, m_key);
    changeMode(file(), 0000);
    changeMode(folder(), 0777);
    const auto outcome = talk(m_talker.asOtherUser(), "get key\nget key\nset key 2\nget key\n");
    changeMode(folder(), 0700);
    changeMode(file(), 0600);
    EXPECT_EQ(outcome.output, QByteArray("ready\nabsent\nabsent\nfailed\nabsent\n"));
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
}

TEST_F(SuiteFaultTest, ABrokenFileInAReadOnlyFolderStaysAndNothingIsWritten)
{
    overwrite(QByteArray(4096, '?'));
    changeMode(file(), 0644);
    changeMode(folder(), 0555);
    const auto outcome = talk(m_talker.asOtherUser(), "get key\nset key 2\nget key\nset key 2\n");
    changeMode(folder(), 0700);
    EXPECT_EQ(outcome.output, QByteArray("ready\nabsent\nfailed\nabsent\nfailed\n"));
    EXPECT_EQ(outcome.errors.count('\n'), 2) << outcome.errors.constData();
    EXPECT_EQ(readFile(file()), QByteArray(4096, '?'));
}

TEST_F(SuiteFaultTest, OldValuesStayIfNoByteCanBeWritten)
{
    m_defaults.setObject(qint64{1}, m_key);
    m_talker.afterFork([] {
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit none{0, 0};
        ::setrlimit(RLIMIT_FSIZE, &none);
    });
    const auto outcome = talk(m_talker, "get key\nset key 2\nget key\nset new 3\nget key\n");
    EXPECT_EQ(outcome.output, QByteArray("ready\n1\nfailed\n1\nfailed\n1\n"));
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
    EXPECT_THAT(asideFiles(), IsEmpty());
}

// The limit allows a part of the journal and of the file, so the write fails in the middle.
TEST_F(SuiteFaultTest, AWriteThatFailsInTheMiddleIsRolledBack)
{
    for (const rlim_t limit : {600U, 5'000U, 9'000U, 14'000U, 30'000U}) {
        ASSERT_TRUE(QDir(folder()).removeRecursively());
        ASSERT_TRUE(
            m_defaults.setObjects({{m_key, qint64(1)}, {QStringLiteral("long"), QString(12'000, u'x')}}));
        ChildProcess talker(testProgram(QStringLiteral("suite_talker")));
        talker.afterFork([limit] {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit bytes{limit, limit};
            ::setrlimit(RLIMIT_FSIZE, &bytes);
        });
        const auto outcome = talk(talker, "set long " + QByteArray(60'000, 'y') + "\nget key\n");
        EXPECT_EQ(outcome.output, QByteArray("ready\nfailed\n1\n")) << limit;
        EXPECT_EQ(m_defaults.integerForKey(m_key), 1) << limit;
        EXPECT_EQ(m_defaults.objectForKey(QStringLiteral("long")), DefaultsValue(QString(12'000, u'x')))
            << limit;
        EXPECT_THAT(asideFiles(), IsEmpty()) << limit;
    }
}

TEST_F(SuiteFaultTest, OldValuesStayOnAFullDiskAndWritingWorksOnceThereIsSpace)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root for a mount namespace";
    constexpr int unsupported = 77;
    const QByteArray place = QFile::encodeName(world().configuration());
    m_talker.afterFork([place] {
        if (::unshare(CLONE_NEWNS) != 0 || ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
            || ::mount("tmpfs", place.constData(), "tmpfs", 0, "size=64k") != 0)
            ::_exit(unsupported);
    });
    const auto outcome = talk(m_talker,
        "set key 1\nset long " + QByteArray(50'000, 'x') + "\nset long " + QByteArray(50'000, 'y')
            + "\nget key\nset key 2\nget key\n");
    if (outcome.exitStatus == unsupported)
        GTEST_SKIP() << "no mount namespaces here";
    EXPECT_EQ(outcome.output, QByteArray("ready\ndone\nfailed\nfailed\n1\ndone\n2\n"));
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
}

TEST_F(SuiteFaultTest, WhileAnotherProgramLocksTheFileOnlyTheFirstAccessWaitsLong)
{
    m_defaults.setObject(qint64{1}, m_key);
    sqlite3 *locker = nullptr;
    ASSERT_EQ(sqlite3_open(QFile::encodeName(file()).constData(), &locker), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(locker, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_FALSE(m_defaults.setObject(qint64{2}, m_key));
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(m_defaults.objectForKey(m_key), std::nullopt);
    EXPECT_LT(std::chrono::steady_clock::now() - start, 3 * std::chrono::milliseconds(150));
    EXPECT_THAT(m_log.messages(), SizeIs(1)) << "one fault";
    ASSERT_EQ(sqlite3_exec(locker, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(locker);
    EXPECT_EQ(m_defaults.integerForKey(m_key), 1);
    EXPECT_TRUE(m_defaults.setObject(qint64{2}, m_key));
    EXPECT_EQ(m_defaults.integerForKey(m_key), 2);
}
