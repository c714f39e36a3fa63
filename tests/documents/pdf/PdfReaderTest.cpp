// SPDX-License-Identifier: MIT
#include "tests/documents/pdf/ReadPdf.h"

#include "documents/flat_text/FlatTextWriter.h"
#include "platform/system/Sanitizers.h"
#include "tests/documents/pdf/PdfWriter.h"
#include "tests/harness/QuillbayTest.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <random>
#include <thread>
#include <vector>

namespace {

using Cause = DocumentError::Cause;

using Encryption = PdfWriter::Encryption;

QString textOf(const PdfWriter &file)
{
    const Result<AttributedString, DocumentError> text = readPdf(file.bytes());
    return text ? text.value().string() : causeText(text.error());
}

/// The text of a page that these operators draw.
QString textOfDrawing(const QByteArray &operators)
{
    return textOf({.pages = {operators}, .arePagesDrawn = true});
}

Cause causeFor(const QByteArray &bytes, const std::optional<ReaderLimits> &limits = std::nullopt)
{
    const Result<AttributedString, DocumentError> text = readPdf(bytes, limits);
    EXPECT_FALSE(text.hasValue());
    return text ? Cause::PdfNotSupported : text.error().cause;
}

ReaderLimits limitsFor(const QByteArray &bytes)
{
    return ReaderLimits::of(DocumentKind::Pdf, bytes.size());
}

/// A page of so many short texts, each of which Qt Pdf keeps as an object of its own.
PdfWriter pageOfTexts(qsizetype count)
{
    return {.pages = {QByteArray("a\n").repeated(count)}, .isCompressed = true};
}

} // namespace

TEST(PdfReader, ReadsCompressedPages)
{
    EXPECT_EQ(textOf({.pages = {"one", "two"}, .isCompressed = true}), QStringLiteral("one\r\ntwo\r\n"));
}

TEST(PdfReader, EndsTheLastLineOfEveryPageThatHasText)
{
    EXPECT_EQ(textOf({{"first", "", "of third\nend", "1", "2"}}),
        QStringLiteral("first\r\nof third\r\nend\r\n1\r\n2\r\n"));
    EXPECT_EQ(textOf({{"", ""}}), QString());
}

TEST(PdfReader, KeepsWordsApartThatATabDivides)
{
    EXPECT_EQ(textOfDrawing("BT /F1 12 Tf 72 720 Td (one\\ttwo) Tj ET"), QStringLiteral("one\ttwo\r\n"));
    EXPECT_EQ(textOfDrawing("BT /F1 12 Tf 72 720 Td (one) Tj 36 0 Td (two) Tj 200 0 Td (three) Tj ET"),
        QStringLiteral("one two three\r\n"));
    EXPECT_EQ(
        textOfDrawing("BT /F1 12 Tf 72 720 Td [(one) -2000 (two)] TJ ET"), QStringLiteral("one two\r\n"));
}

TEST(PdfReader, JoinsAWordThatAHyphenDividesAtTheEndOfALine)
{
    EXPECT_EQ(textOf({{"a hyphen-\nated word - and\nmore"}}),
        QStringLiteral("a hyphen\u00ADated word - and\r\nmore\r\n"));
}

TEST(PdfReader, ReadsAnEncryptedFileThatOpensWithoutAPassword)
{
    EXPECT_EQ(textOf({.pages = {"open to all"}, .encryption = Encryption::WithEmptyPassword}),
        QStringLiteral("open to all\r\n"));
}

TEST(PdfReader, NamesTheCauseOfAFailure)
{
    EXPECT_EQ(causeFor({}), Cause::WrongKind);
    EXPECT_EQ(causeFor("Some words."), Cause::WrongKind);
    EXPECT_EQ(causeFor("%PDF-1.4\n"), Cause::Damaged);
    EXPECT_EQ(causeFor(PdfWriter{{"text"}}.bytes().first(100)), Cause::Damaged);
    EXPECT_EQ(causeFor(PdfWriter{}.bytes()), Cause::NoPages);
    EXPECT_EQ(causeFor(PdfWriter{}.bytes().replace("[]", "[ \n]")), Cause::NoPages);
    EXPECT_EQ(causeFor(PdfWriter{.pages = {"text"}, .encryption = Encryption::WithPassword}.bytes()),
        Cause::Encrypted);
}

TEST(PdfReader, ReportsEveryCauseInOneLineWithARemedy)
{
    for (const Cause cause :
        {Cause::Encrypted, Cause::Damaged, Cause::NoPages, Cause::NoText, Cause::UnmappedText,
            Cause::TooComplex, Cause::PdfNotSupported, Cause::NoReader, Cause::NoSandbox}) {
        const QString text = causeText({cause, DocumentKind::Pdf});
        EXPECT_TRUE(text.contains(u';')) << qPrintable(text);
        EXPECT_FALSE(text.contains(u'\n'));
    }
}

TEST(PdfReader, FailsWhereAFileTakesTooMuchMemory)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitized program cannot run under a limit of its memory";
    const QByteArray bomb = pageOfTexts(2'000'000).bytes();
    EXPECT_LT(bomb.size(), 100'000);
    ReaderLimits limits = limitsFor(bomb);
    limits.memory = 100'000'000;
    EXPECT_EQ(causeFor(bomb, limits), Cause::TooComplex);
}

TEST(PdfReader, FailsWhereAFileTakesTooMuchTime)
{
    PdfWriter file = pageOfTexts(200'000);
    file.pages = QByteArrayList(20, file.pages.first());
    const QByteArray bytes = file.bytes();
    ReaderLimits limits = limitsFor(bytes);
    limits.processorTime = std::chrono::seconds(1);
    EXPECT_EQ(causeFor(bytes, limits), Cause::TooComplex);
}

TEST(PdfReader, FailsWhereTheTextIsTooLong)
{
    const QByteArray file = PdfWriter{{"0123456789", "0123456789"}}.bytes();
    ReaderLimits limits = limitsFor(file);
    limits.output = flatTextOf(AttributedString(QString(24, u'x'))).size();
    EXPECT_EQ(readPdf(file, limits).value().length(), 24);
    --limits.output;
    EXPECT_EQ(causeFor(file, limits), Cause::TooComplex);
}

TEST(PdfReader, DoesNotTrustTheNumberOfPages)
{
    for (const int claimed : {0, 1, 3, 1'000'000, 2'000'000'000}) {
        const Result<AttributedString, DocumentError> text =
            readPdf(PdfWriter{.pages = {"one", "two"}, .claimedPages = claimed}.bytes());
        EXPECT_TRUE(text ? QStringLiteral("one\r\ntwo\r\n").startsWith(text.value().string())
                         : text.error().cause == Cause::Damaged || text.error().cause == Cause::NoPages)
            << claimed;
    }
}

TEST(PdfReader, SurvivesChangedBytes)
{
    const QByteArray sound = PdfWriter{.pages = {"some text", "and more"}, .isCompressed = true}.bytes();
    std::mt19937 random(11);
    for (int round = 0; round < 60; ++round) {
        QByteArray changed = sound;
        for (int change = 0; change < 3; ++change)
            changed[static_cast<qsizetype>(random() % static_cast<size_t>(sound.size()))] =
                static_cast<char>(random());
        const Result<AttributedString, DocumentError> text = readPdf(changed);
        EXPECT_TRUE(text || text.error().cause != Cause::NotEnoughMemory);
    }
}

TEST(PdfReader, ReadsInAProgramWhoseStandardStreamsAreClosed)
{
    std::array<int, 3> saved{};
    for (int stream = 0; stream < 3; ++stream) {
        saved[static_cast<size_t>(stream)] = ::fcntl(stream, F_DUPFD_CLOEXEC, 10);
        ::close(stream);
    }
    const QString text = textOf({{"no streams"}});
    for (int stream = 0; stream < 3; ++stream) {
        ::dup2(saved[static_cast<size_t>(stream)], stream);
        ::close(saved[static_cast<size_t>(stream)]);
    }
    EXPECT_EQ(text, QStringLiteral("no streams\r\n"));
}

TEST(PdfReader, ReadsOnSeveralThreadsAtOnce)
{
    std::atomic<int> read = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([&read] {
            for (int round = 0; round < 10; ++round)
                read += textOf({{"some words"}}) == QStringLiteral("some words\r\n") ? 1 : 0;
        });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(read, 40);
}
