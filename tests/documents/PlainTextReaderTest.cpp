// SPDX-License-Identifier: MIT
#include "documents/PlainTextReader.h"

#include "tests/documents/SampleTexts.h"
#include "tests/harness/QuillbayTest.h"

#include <random>
#include <sys/mman.h>

using namespace SampleTexts;

namespace {

struct Unicode {
    const char *encoding;
    QByteArray mark;
};

const Unicode unicodes[] = {
    {"UTF-8", "\xEF\xBB\xBF"},
    {"UTF-16LE", "\xFF\xFE"},
    {"UTF-16BE", "\xFE\xFF"},
    {"UTF-32LE", QByteArray("\xFF\xFE\0\0", 4)},
    {"UTF-32BE", QByteArray("\0\0\xFE\xFF", 4)},
};

QString textOf(const QByteArray &bytes)
{
    return readPlainText(bytes).value().text;
}

QByteArray encodingOf(const QByteArray &bytes)
{
    return readPlainText(bytes).value().encoding;
}

} // namespace

TEST(PlainTextReader, AByteOrderMarkSaysTheEncodingAndIsNoPartOfTheText)
{
    const QString text = QStringLiteral("Aé€😀\n");
    for (const Unicode &unicode : unicodes) {
        const QByteArray bytes = unicode.mark + encodeText(text, unicode.encoding);
        EXPECT_EQ(encodingOf(bytes), unicode.encoding);
        EXPECT_EQ(textOf(bytes), text);
    }
}

TEST(PlainTextReader, AByteOrderMarkAloneIsAnEmptyText)
{
    for (const Unicode &unicode : unicodes) {
        EXPECT_EQ(encodingOf(unicode.mark), unicode.encoding);
        EXPECT_EQ(textOf(unicode.mark), QString());
    }
}

TEST(PlainTextReader, ASecondByteOrderMarkIsACharacter)
{
    for (const Unicode &unicode : unicodes)
        EXPECT_EQ(textOf(unicode.mark + unicode.mark), QStringLiteral(u"\uFEFF")) << unicode.encoding;
}

TEST(PlainTextReader, AByteOrderMarkOutweighsWhatFollows)
{
    EXPECT_EQ(textOf("\xEF\xBB\xBF"
                     "caf\xE9 \xE9t\xE9"),
        QStringLiteral(u"caf\uFFFD \uFFFDt\uFFFD"));
    EXPECT_EQ(textOf(QByteArray("\xFE\xFF\x20\x41", 4)), QStringLiteral(u"\u2041"));
}

TEST(PlainTextReader, EveryLanguageIsReadInEveryUnicodeEncoding)
{
    for (const QString *text :
        {&english, &russian, &hebrew, &hindi, &japanese, &simplifiedChinese, &korean}) {
        for (const Unicode &unicode : unicodes) {
            const QByteArray bytes = encodeText(*text, unicode.encoding);
            EXPECT_EQ(textOf(bytes), *text) << unicode.encoding;
            EXPECT_EQ(textOf(unicode.mark + bytes), *text) << unicode.encoding;
        }
    }
}

TEST(PlainTextReader, NoBytesAreAnEmptyText)
{
    EXPECT_EQ(textOf({}), QString());
    EXPECT_EQ(encodingOf({}), "UTF-8");
}

TEST(PlainTextReader, ALastLineNeedsNoEnd)
{
    EXPECT_EQ(textOf("one\r\ntwo"), QStringLiteral("one\r\ntwo"));
}

TEST(PlainTextReader, ANulIsACharacter)
{
    const QByteArray bytes("one\0two \0caf\xC3\xA9\0\n", 16);
    EXPECT_EQ(encodingOf(bytes), "UTF-8");
    EXPECT_EQ(textOf(bytes), QString::fromUtf8(bytes));
    EXPECT_EQ(textOf(QByteArray(3, '\0')), QString(3, QChar(u'\0')));
}

TEST(PlainTextReader, Utf8WithAFewBrokenSequencesStaysUtf8)
{
    for (const char *broken : {"\xFF", "\x80", "\xC3(", "\xED\xA0\x80", "\xC0\x80", "\xF5\x80\x80\x80"}) {
        const QByteArray bytes = broken + russian.toUtf8();
        const PlainText read = readPlainText(bytes).value();
        EXPECT_EQ(read.encoding, "UTF-8");
        EXPECT_TRUE(read.text.endsWith(russian));
        EXPECT_EQ(read.text.front(), QChar(QChar::ReplacementCharacter));
    }
}

TEST(PlainTextReader, OneBrokenSequenceAtTheStartOfALongAsciiTextDoesNotDecide)
{
    const QString rest = QStringLiteral("nothing but ASCII\n").repeated(10'000) + russian;
    EXPECT_EQ(textOf('\xA9' + rest.toUtf8()), QChar(QChar::ReplacementCharacter) + rest);
}

TEST(PlainTextReader, ABrokenSequenceBehindALongCleanTextIsReplaced)
{
    const QString start = russian.repeated(1000);
    EXPECT_EQ(textOf(start.toUtf8() + "\xFFx"), start + QStringLiteral(u"\uFFFDx"));
}

TEST(PlainTextReader, ACutLastSequenceIsOneReplacement)
{
    const QString text = QStringLiteral("Ж😀");
    for (const qsizetype cut : {1, 2, 3})
        EXPECT_EQ(textOf(text.toUtf8().chopped(cut)), QStringLiteral(u"Ж\uFFFD")) << cut;
}

TEST(PlainTextReader, MoreBrokenSequencesThanWellFormedOnesAreNoUtf8)
{
    // The third character is also a well-formed sequence of UTF-8.
    const QString text = QStringLiteral("été à Ã©té déjà là");
    EXPECT_EQ(textOf(encodeText(text, "windows-1252")), text);
}

TEST(PlainTextReader, AnOddLastByteIsReplaced)
{
    EXPECT_EQ(textOf(encodeText(german, "UTF-16LE") + 'x'), german + QChar(QChar::ReplacementCharacter));
    EXPECT_EQ(textOf(encodeText(german, "UTF-16BE") + 'x'), german + QChar(QChar::ReplacementCharacter));
    EXPECT_EQ(textOf(QByteArray("\xFF\xFE") + 'x'), QString(QChar(QChar::ReplacementCharacter)));
    EXPECT_EQ(textOf(encodeText(german, "UTF-32LE") + "x"), german + QChar(QChar::ReplacementCharacter));
}

TEST(PlainTextReader, HalfASurrogatePairIsReplaced)
{
    EXPECT_EQ(textOf(QByteArray("\xFE\xFF\xD8\x3D\0x\xDE\0", 8)), QStringLiteral(u"\uFFFDx\uFFFD"));
    EXPECT_EQ(textOf(QByteArray("\xFE\xFF\0x\xD8\x3D", 6)), QStringLiteral(u"x\uFFFD"));
}

TEST(PlainTextReader, ANumberThatIsNoCharacterIsReplaced)
{
    EXPECT_EQ(
        textOf(QByteArray("\0\0\xFE\xFF\0\x11\0\0\0\0\xD8\0\0\0\0x", 16)), QStringLiteral(u"\uFFFD\uFFFDx"));
}

TEST(PlainTextReader, EveryPrefixOfAMarkedTextIsAPrefixOfIt)
{
    const QString text = QStringLiteral("Aé€😀 ") + russian + japanese;
    for (const Unicode &unicode : unicodes) {
        const QByteArray bytes = encodeText(text, unicode.encoding);
        for (qsizetype length = 0; length <= bytes.size(); ++length) {
            QString read = textOf(unicode.mark + bytes.first(length));
            if (read.endsWith(QChar::ReplacementCharacter))
                read.chop(1);
            ASSERT_TRUE(text.startsWith(read)) << unicode.encoding << ' ' << length;
        }
    }
}

TEST(PlainTextReader, EveryPrefixOfAnUnmarkedTextIsAText)
{
    for (const Unicode &unicode : unicodes) {
        const QByteArray bytes = unicode.mark + encodeText(german + korean, unicode.encoding);
        for (qsizetype length = 0; length <= bytes.size(); ++length) {
            ASSERT_TRUE(readPlainText(bytes.first(length)));
            ASSERT_TRUE(readPlainText(bytes.last(length)));
        }
    }
}

TEST(PlainTextReader, AnyBytesAreAText)
{
    std::mt19937 random(20'240'501);
    // Random bytes, and random choices among those that mean something somewhere.
    const QByteArray meaningful(
        "\0\x0A\x0E\x0F\x1B$()@BACDGHIJ az\x7F\x80\x81\xA0\xC3\xD8\xDC\xE0\xED\xEF\xBB\xBF\xF0\xFE\xFF", 36);
    for (int round = 0; round < 4'000; ++round) {
        QByteArray bytes(static_cast<qsizetype>(random() % 200), Qt::Uninitialized);
        for (char &byte : bytes)
            byte =
                round % 2 ? static_cast<char>(random()) : meaningful[static_cast<qsizetype>(random() % 36)];
        const Result<PlainText, DocumentError> read = readPlainText(bytes);
        ASSERT_TRUE(read);
        ASSERT_TRUE(read.value().text.isValidUtf16()) << bytes.toHex().constData();
        ASSERT_LE(read.value().text.size(), bytes.size()) << bytes.toHex().constData();
    }
}

TEST(PlainTextReader, ALongRowOfAnyByteIsAText)
{
    for (int byte = 0; byte < 256; ++byte) {
        for (const char *start : {"", "\x1B$B", "\x1B$)C\x0E"})
            EXPECT_TRUE(readPlainText(start + QByteArray(100'000, static_cast<char>(byte)))) << byte;
    }
}

TEST(PlainTextReader, MoreBytesThanPositionsHave32BitsForAreTooLong)
{
    // Never read, so nothing but addresses is taken.
    constexpr size_t length = INT32_MAX;
    void *memory = ::mmap(nullptr, length, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(memory, MAP_FAILED);
    const Result<PlainText, DocumentError> read =
        readPlainText(QByteArrayView(static_cast<const char *>(memory), static_cast<qsizetype>(length)));
    ASSERT_FALSE(read);
    EXPECT_EQ(read.error().cause, DocumentError::Cause::TooLong);
    EXPECT_EQ(causeText(read.error()), QStringLiteral("is larger than 2 GiB"));
    ::munmap(memory, length);
}
