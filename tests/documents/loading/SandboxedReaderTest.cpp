// SPDX-License-Identifier: MIT
// How documents are read in another process, and what a failure of it means.
#include "documents/loading/SandboxedReader.h"
#include "platform/system/Sanitizers.h"
#include "tests/documents/loading/ReaderPrograms.h"
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/QuillbayTest.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <atomic>
#include <csignal>
#include <future>

namespace {

using namespace std::chrono_literals;
using Cause = DocumentError::Cause;
using Text = Result<AttributedString, DocumentError>;

const QByteArray rtf = "{\\rtf1 some {\\b text}}";

class SandboxedReaderTest : public QuillbayTest {
protected:
    const std::vector<pid_t> m_others = childrenOf(); // the shared reader's, after another test

    /// A reader that has worked for longer than its start takes; 0 after a timeout.
    [[nodiscard]] pid_t busyReader() const
    {
        pid_t reader = 0;
        (void)waitUntil([&] {
            for (const pid_t process : childrenOf(::getpid(), m_others)) {
                const qint64 nanoseconds = procFile(process, "schedstat").split(' ').first().toLongLong();
                if (nanoseconds > 300'000'000 && !statusOf(process, "State").startsWith('Z'))
                    reader = process;
            }
            return reader != 0;
        });
        return reader;
    }

    /// A program in place of the reader.
    static QByteArray script(const QByteArray &commands)
    {
        const QByteArray path =
            QFile::encodeName(writeFile(QStringLiteral("reader"), "#!/bin/sh\n" + commands + '\n'));
        EXPECT_EQ(::chmod(path.constData(), 0755), 0);
        return path;
    }

    /// A program that greets as the reader does, and then does what its name says.
    static QByteArray fakeReader(const char *name)
    {
        const QString path = world().root() + u'/' + QLatin1String(name);
        EXPECT_TRUE(QFile::link(testProgram(QStringLiteral("fake_document_reader")), path));
        return QFile::encodeName(path);
    }

    static std::optional<Cause> causeWith(
        const QByteArray &program, const std::optional<ReaderLimits> &limits = std::nullopt)
    {
        const Text text = SandboxedReader(program).read(DocumentKind::Rtf, rtf, {}, limits);
        return text ? std::nullopt : std::optional(text.error().cause);
    }

    static ReaderLimits limits() { return ReaderLimits::of(DocumentKind::Rtf, rtf.size()); }

    /// A file that takes seconds to read.
    static QByteArray longFile()
    {
        const QByteArray page = QByteArray("a\n").repeated(200'000);
        return PdfWriter{.pages = QByteArrayList(20, page), .isCompressed = true}.bytes();
    }
};

} // namespace

TEST_F(SandboxedReaderTest, FindsItsProgramBesideTheProgramThatRuns)
{
    EXPECT_EQ(SandboxedReader::defaultProgram(),
        QFile::encodeName(testProgram(QStringLiteral("quillbay-document-reader"))));
}

TEST_F(SandboxedReaderTest, ReadsADocumentWithItsAttributes)
{
    const Text text = SandboxedReader::shared().read(DocumentKind::Rtf, rtf);
    ASSERT_TRUE(text);
    EXPECT_EQ(text.value().string(), QStringLiteral("some text"));
    EXPECT_EQ(text.value().attributesAt(5).font->weight, boldFontWeight);
    EXPECT_TRUE(SandboxedReader::shared().read(DocumentKind::Rtf, "{\\rtf1}").value().isEmpty());
}

TEST_F(SandboxedReaderTest, DecodesPlainTextWithoutTheProgram)
{
    SandboxedReader reader("/missing");
    EXPECT_EQ(reader.read(DocumentKind::PlainText, "\xE9t\xE9", {.charset = "latin1"}).value().string(),
        QStringLiteral("\u00E9t\u00E9"));
    EXPECT_EQ(childrenOf(), m_others);
}

TEST_F(SandboxedReaderTest, ReportsTheCauseThatTheReaderHas)
{
    SandboxedReader &reader = SandboxedReader::shared();
    EXPECT_EQ(
        reader.read(DocumentKind::Rtf, "text").error(), DocumentError(Cause::WrongKind, DocumentKind::Rtf));
    EXPECT_EQ(reader.read(DocumentKind::WordDocument, "PK\3\4").error(),
        DocumentError(Cause::Damaged, DocumentKind::WordDocument));
    EXPECT_EQ(reader.read(DocumentKind::Pdf, {}).error(), DocumentError(Cause::WrongKind, DocumentKind::Pdf));
}

TEST_F(SandboxedReaderTest, PassesOnTheCharsetAndTheLocale)
{
    SandboxedReader &reader = SandboxedReader::shared();
    EXPECT_EQ(reader.read(DocumentKind::Html, "<p>\xE1", {.charset = "windows-1251"}).value().string(),
        QStringLiteral("\u0431"));
    // Bytes without any other sign of their encoding.
    const QByteArray page = "<p>\xFD\xFE\xF0";
    setLocale("tr_TR.UTF-8");
    const QString turkish = reader.read(DocumentKind::Html, page).value().string();
    setLocale("en_US.UTF-8");
    const QString american = reader.read(DocumentKind::Html, page).value().string();
    setLocale("tr_TR.UTF-8");
    EXPECT_EQ(turkish, readDocument(DocumentKind::Html, page).value().string());
    setLocale("en_US.UTF-8");
    EXPECT_EQ(american, readDocument(DocumentKind::Html, page).value().string());
}

TEST_F(SandboxedReaderTest, KilledAgainAndAgainGivesNoText)
{
    SandboxedReader reader;
    std::future<Text> reading = std::async(
        std::launch::async, [&reader, file = longFile()] { return reader.read(DocumentKind::Pdf, file); });
    for (int round = 0; round < 2; ++round) {
        const pid_t process = busyReader();
        ASSERT_NE(process, 0); // kill(0) would end this group of processes
        ASSERT_EQ(::kill(process, SIGKILL), 0);
        ASSERT_TRUE(waitUntilEnded(process));
    }
    const Text text = reading.get();
    ASSERT_FALSE(text.hasValue());
    EXPECT_EQ(text.error().cause, Cause::TooComplex);
}

TEST_F(SandboxedReaderTest, IsKilledWhenNobodyNeedsTheTextAnyMore)
{
    SandboxedReader reader;
    std::stop_source stop;
    std::future<Text> reading = std::async(std::launch::async,
        [&, page = slowPage()] { return reader.read(DocumentKind::Html, page, {.stop = stop.get_token()}); });
    const pid_t process = readerAtWork();
    ASSERT_NE(process, 0);
    ASSERT_EQ(::kill(process, SIGSTOP), 0); // it cannot exit by itself
    stop.request_stop();
    EXPECT_EQ(reading.get().error(), DocumentError(Cause::Cancelled, DocumentKind::Html));
    EXPECT_TRUE(waitUntilEnded(process));
    EXPECT_EQ(reader.read(DocumentKind::PlainText, "text", {.stop = stop.get_token()}).error().cause,
        Cause::Cancelled);
}

TEST_F(SandboxedReaderTest, EndsWithTheProgramThatStartedIt)
{
    const QString file = writeFile(QStringLiteral("long.pdf"), longFile());
    ChildProcess program(testProgram(QStringLiteral("load_document")));
    program.start({QFile::encodeName(file), "pdf"});
    const pid_t reader = confinedReader(program.processIdentifier());
    ASSERT_NE(reader, 0);
    ASSERT_EQ(::kill(reader, SIGSTOP), 0); // it cannot exit by itself
    program.kill();
    EXPECT_TRUE(waitUntilEnded(reader));
}

TEST_F(SandboxedReaderTest, ThatHangsIsKilled)
{
    ReaderLimits shortTime = limits();
    shortTime.realTime = 1s;
    EXPECT_EQ(causeWith(fakeReader("hangs"), shortTime), Cause::TooComplex);
    EXPECT_EQ(childrenOf(), m_others);
}

TEST_F(SandboxedReaderTest, ThatCrashesOverADocumentFindsItDamaged)
{
    for (const char *name : {"crashes", "exits", "closes-its-socket"})
        EXPECT_EQ(causeWith(fakeReader(name)), Cause::Damaged) << name;
    EXPECT_EQ(causeWith(fakeReader("aborts")), Cause::TooComplex);
}

TEST_F(SandboxedReaderTest, ThatSendsAnythingButATextIsNotTrusted)
{
    for (const char *name : {"replies-with-garbage", "keeps-the-memory", "writes-garbage", "claims-too-much",
             "claims-too-little", "grows-the-memory"})
        EXPECT_EQ(causeWith(fakeReader(name)), Cause::Damaged) << name;
    EXPECT_EQ(causeWith(fakeReader("sends-a-text")), std::nullopt);
}

TEST_F(SandboxedReaderTest, DoesNotWaitForAProgramThatLivesOn)
{
    EXPECT_EQ(causeWith(fakeReader("lives-on")), std::nullopt);
    EXPECT_EQ(childrenOf(), m_others);
}

TEST_F(SandboxedReaderTest, ThatCannotBeStartedHasACause)
{
    const QByteArray unexecutable = QFile::encodeName(writeFile(QStringLiteral("not-executable"), "nothing"));
    for (const QByteArray &program : {QByteArray("/missing/quillbay-document-reader"), unexecutable,
             script("exit 127"), fakeReader("ends-at-once"), fakeReader("greets-with-garbage")})
        EXPECT_EQ(causeWith(program), Cause::NoReader) << program.constData();
    EXPECT_EQ(causeText({Cause::NoReader, DocumentKind::Rtf}),
        QStringLiteral("needs the program quillbay-document-reader, which is missing or does not start; "
                       "reinstall Quillbay"));
}

TEST_F(SandboxedReaderTest, OpensNothingForItsProgramButItsConnectionAndItsMemory)
{
    const QFile open(world().root() + QStringLiteral("/open"));
    // ls itself opens the folder that it lists: one more.
    const QByteArray program = script("ls /proc/self/fd >'" + QFile::encodeName(open.fileName()) + '\'');
    const int other = ::dup(STDERR_FILENO); // not close-on-exec
    EXPECT_EQ(causeWith(program), Cause::NoReader);
    ::close(other);
    EXPECT_EQ(readFile(open.fileName()), "0\n1\n2\n3\n4\n5\n");
}

TEST_F(SandboxedReaderTest, ReadsInAProgramWhoseStandardStreamsAreClosed)
{
    std::array<int, 3> saved{};
    for (int stream = 0; stream < 3; ++stream) {
        saved[static_cast<size_t>(stream)] = ::fcntl(stream, F_DUPFD_CLOEXEC, 10);
        ::close(stream);
    }
    const Text text = SandboxedReader().read(DocumentKind::Rtf, rtf);
    for (int stream = 0; stream < 3; ++stream) {
        ::dup2(saved[static_cast<size_t>(stream)], stream);
        ::close(saved[static_cast<size_t>(stream)]);
    }
    EXPECT_EQ(text.value().string(), QStringLiteral("some text"));
}

TEST_F(SandboxedReaderTest, StopsAtItsLimits)
{
    const QByteArray page = "<p " + QByteArray("a=1 ").repeated(1'000'000);
    ReaderLimits limits = ReaderLimits::of(DocumentKind::Html, page.size());
    limits.processorTime = 0s;
    const auto slow = SandboxedReader::shared().read(DocumentKind::Html, page.repeated(20), {}, limits);
    ASSERT_FALSE(slow);
    EXPECT_EQ(slow.error(), DocumentError(Cause::TooComplex, DocumentKind::Html));
    EXPECT_EQ(causeText(slow.error()),
        QStringLiteral("takes too much time or memory to read; simplify or divide it"));

    limits = ReaderLimits::of(DocumentKind::Rtf, rtf.size());
    limits.output = 100; // less than its attributes take
    EXPECT_EQ(
        SandboxedReader::shared().read(DocumentKind::Rtf, rtf, {}, limits).error().cause, Cause::TooComplex);
}

TEST_F(SandboxedReaderTest, StopsAtItsLimitOfMemory)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitized program cannot run under a limit of its memory";
    const QByteArray text = "{\\rtf1 " + QByteArray("word ").repeated(20'000'000) + '}';
    ReaderLimits limits = ReaderLimits::of(DocumentKind::Rtf, text.size());
    limits.memory = 50'000'000;
    EXPECT_EQ(
        SandboxedReader::shared().read(DocumentKind::Rtf, text, {}, limits).error().cause, Cause::TooComplex);
}

TEST_F(SandboxedReaderTest, ReadsOnManyThreadsAtOnce)
{
    SandboxedReader reader;
    std::atomic<int> read = 0;
    {
        std::vector<std::jthread> threads;
        for (int thread = 0; thread < 8; ++thread) {
            threads.emplace_back([&, thread] {
                for (int round = 0; round < 10; ++round) {
                    const QByteArray number = QByteArray::number(100 * thread + round);
                    const Text text = reader.read(DocumentKind::Rtf, "{\\rtf1 " + number + '}');
                    read += text && text.value().string() == QString::fromLatin1(number) ? 1 : 0;
                }
            });
        }
    }
    EXPECT_EQ(read, 80);
}

TEST_F(SandboxedReaderTest, RefusesToBeStartedByHand)
{
    for (const QByteArrayList &arguments : {QByteArrayList{}, {"--help"}}) {
        const ChildProcess::Outcome outcome =
            ChildProcess(productProgram(QStringLiteral("quillbay-document-reader"))).run(arguments, rtf);
        EXPECT_EQ(outcome.exitStatus, 2);
        EXPECT_TRUE(outcome.errors.contains("is started by Quillbay's other programs"));
        EXPECT_EQ(outcome.output, QByteArray());
    }
}
