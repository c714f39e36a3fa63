// SPDX-License-Identifier: MIT
// The process that reads a PDF file: how it runs, and what a failure of it means.
#include "documents/pdf/PdfReader.h"
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <future>

namespace {

using namespace std::chrono_literals;

using Cause = DocumentError::Cause;

class PdfReaderProcess : public QuillbayTest {
protected:
    using Text = Result<AttributedString, DocumentError>;

    /// A file that takes seconds to read.
    static QByteArray longFile()
    {
        const QByteArray page = QByteArray("a\n").repeated(200'000);
        return PdfWriter{.pages = QByteArrayList(20, page), .isCompressed = true}.bytes();
    }

    /// A program in place of the reader.
    static QByteArray script(const QByteArray &commands)
    {
        const QByteArray path =
            QFile::encodeName(writeFile(QStringLiteral("reader"), "#!/bin/sh\n" + commands + '\n'));
        EXPECT_EQ(::chmod(path.constData(), 0755), 0);
        return path;
    }

    static std::optional<Cause> causeWith(const QByteArray &program, const PdfLimits &limits = {})
    {
        const Text text = readPdf(PdfWriter{{"some text"}}.bytes(), limits, program);
        return text ? std::nullopt : std::optional(text.error().cause);
    }

    /// A file of the process below /proc; empty where the process has ended.
    static QByteArray procFile(pid_t process, const char *name)
    {
        QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static QByteArray statusOf(pid_t process, const QByteArray &name)
    {
        for (const QByteArray &line : procFile(process, "status").split('\n'))
            if (line.startsWith(name + ":\t"))
                return line.sliced(name.size() + 2);
        return {};
    }

    /// The reader that the process has started, once it is in its sandbox; 0 after a timeout.
    static pid_t confinedReader(qint64 parent = ::getpid())
    {
        pid_t reader = 0;
        const bool isFound = waitUntil([&reader, parent] {
            for (const QString &entry : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
                const pid_t process = entry.toInt();
                if (process > 0 && statusOf(process, "PPid").toLongLong() == parent
                    && statusOf(process, "Seccomp") == "2")
                    reader = process;
            }
            return reader != 0;
        });
        EXPECT_TRUE(isFound);
        return reader;
    }

    static std::future<Text> startReading(const QByteArray &file, const PdfLimits &limits = {})
    {
        return std::async(std::launch::async, [file, limits] { return readPdf(file, limits); });
    }
};

} // namespace

TEST_F(PdfReaderProcess, LiesBesideTheProgramThatRuns)
{
    EXPECT_EQ(pdfReaderProgram(), QFile::encodeName(testProgram(QStringLiteral("quillbay-pdf-reader"))));
}

TEST_F(PdfReaderProcess, IsConfinedWhileItReads)
{
    std::future<Text> reading = startReading(longFile());
    const pid_t reader = confinedReader();
    ASSERT_NE(reader, 0);
    EXPECT_EQ(statusOf(reader, "NoNewPrivs"), "1");
    EXPECT_EQ(statusOf(reader, "Name"), "quillbay-pdf-re");
    EXPECT_EQ(statusOf(reader, "Threads"), "1");
    const QByteArray limits = procFile(reader, "limits").simplified();
    EXPECT_TRUE(limits.contains("Max file size 0 0")) << limits.constData();
    EXPECT_TRUE(limits.contains("Max processes 0 0"));
    EXPECT_TRUE(limits.contains("Max core file size 0 0"));
    EXPECT_FALSE(limits.contains("Max cpu time unlimited"));
#ifndef __SANITIZE_ADDRESS__
    EXPECT_FALSE(limits.contains("Max data size unlimited"));
#endif
    ASSERT_EQ(::kill(reader, SIGKILL), 0);
    reading.wait();
}

TEST_F(PdfReaderProcess, KilledInTheMiddleGivesNoText)
{
    std::future<Text> reading = startReading(longFile());
    const pid_t reader = confinedReader();
    ASSERT_NE(reader, 0); // kill(0) would end this group of processes
    ASSERT_EQ(::kill(reader, SIGKILL), 0);
    const Text text = reading.get();
    ASSERT_FALSE(text.hasValue());
    EXPECT_EQ(text.error().cause, Cause::TooComplex);
}

TEST_F(PdfReaderProcess, EndsWithTheProgramThatStartedIt)
{
    const QString file = writeFile(QStringLiteral("long.pdf"), longFile());
    ChildProcess program(testProgram(QStringLiteral("print_pdf_text")));
    program.start({QFile::encodeName(file)});
    const pid_t reader = confinedReader(program.processIdentifier());
    ASSERT_NE(reader, 0);
    ASSERT_EQ(::kill(reader, SIGSTOP), 0); // it cannot exit by itself
    program.kill();
    EXPECT_TRUE(waitUntil([reader] {
        const QByteArray state = statusOf(reader, "State");
        return state.isEmpty() || state.startsWith('Z');
    }));
}

TEST_F(PdfReaderProcess, ThatHangsIsKilled)
{
    std::future<Text> reading = startReading(longFile(), {.time = 4s, .timeout = 1});
    const pid_t reader = confinedReader();
    ASSERT_NE(reader, 0);
    ASSERT_EQ(::kill(reader, SIGSTOP), 0);
    const Text text = reading.get();
    ASSERT_FALSE(text.hasValue());
    EXPECT_EQ(text.error().cause, Cause::TooComplex);
    EXPECT_EQ(::kill(reader, 0), -1);
}

TEST_F(PdfReaderProcess, ThatHangsAfterItsTextIsKilled)
{
    const QByteArray program = script("printf 'h\\0'; exec sleep 1000 >&-");
    EXPECT_EQ(causeWith(program, {.time = 1s, .timeout = 1}), Cause::TooComplex);
}

TEST_F(PdfReaderProcess, ThatWritesWithoutEndIsKilled)
{
    EXPECT_EQ(causeWith(script("exec cat /dev/zero"), {.length = 100'000}), Cause::TooComplex);
}

TEST_F(PdfReaderProcess, ThatCannotBeStartedHasACause)
{
    const QByteArray unexecutable = QFile::encodeName(writeFile(QStringLiteral("not-executable"), "nothing"));
    for (const QByteArray &program :
        {QByteArray("/missing/quillbay-pdf-reader"), unexecutable, script("exit 127")})
        EXPECT_EQ(causeWith(program), Cause::NoPdfReader) << program.constData();
    EXPECT_EQ(causeText({Cause::NoPdfReader, DocumentKind::Pdf}),
        QStringLiteral("needs the program quillbay-pdf-reader, which is missing or does not start; "
                       "reinstall Quillbay"));
}

TEST_F(PdfReaderProcess, HasNothingOpenButItsStandardStreams)
{
    const QFile open(world().root() + QStringLiteral("/open"));
    // ls itself opens the folder that it lists: one more.
    const QByteArray program = script("ls /proc/self/fd >'" + QFile::encodeName(open.fileName()) + '\'');
    const int other = ::dup(STDERR_FILENO); // not close-on-exec
    EXPECT_EQ(causeWith(program), std::nullopt);
    ::close(other);
    EXPECT_EQ(readFile(open.fileName()), "0\n1\n2\n3\n");
}

TEST_F(PdfReaderProcess, GetsTheFileAsMemoryThatCannotChange)
{
    const QByteArray copy = QFile::encodeName(world().root() + QStringLiteral("/copy"));
    const QByteArray program = script("cat /proc/self/fd/0 >'" + copy
        + "'; { echo more >&0; } 2>/dev/null || { printf 'n\\0o\\0'; exit 0; }");
    const QByteArray file = PdfWriter{{"some text"}}.bytes();
    const Text text = readPdf(file, {}, program);
    ASSERT_TRUE(text.hasValue());
    EXPECT_EQ(text.value().string(), QStringLiteral("no"));
    EXPECT_EQ(readFile(QFile::decodeName(copy)), file);
}

TEST_F(PdfReaderProcess, RefusesToBeStartedByHand)
{
    ChildProcess program(productProgram(QStringLiteral("quillbay-pdf-reader")));
    const ChildProcess::Outcome withoutOrder = program.run({"--help"});
    EXPECT_EQ(withoutOrder.exitStatus, 2);
    EXPECT_TRUE(withoutOrder.errors.contains("is started by Quillbay's other programs"));
    ChildProcess another(productProgram(QStringLiteral("quillbay-pdf-reader")));
    const ChildProcess::Outcome withoutMemory =
        another.run({"60", "60", "100000000", "100"}, PdfWriter{{"some text"}}.bytes());
    EXPECT_EQ(withoutMemory.exitStatus, 2);
    EXPECT_EQ(withoutMemory.output, QByteArray());
}
