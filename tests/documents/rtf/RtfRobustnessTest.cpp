// SPDX-License-Identifier: MIT
// Reading any document ends and returns a valid text.
#include "platform/system/Sanitizers.h"
#include "tests/documents/rtf/RtfDocuments.h"

#include <cstring>
#include <fstream>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

using namespace RtfDocuments;

namespace {

using Cause = DocumentError::Cause;

AttachmentSource anyAttachment()
{
    return [](const QString &name) { return std::make_shared<const Attachment>(Attachment{name, {}}); };
}

void expectSoundOrRefused(const QByteArray &rtf)
{
    const Result<AttributedString, DocumentError> result = readRtf(rtf, anyAttachment());
    if (result)
        expectSound(result.value());
    else
        EXPECT_EQ(result.error().cause, Cause::WrongKind);
}

/// Long enough to make quadratic time noticeable.
constexpr qsizetype longRun = 2'000'000;

} // namespace

TEST(RtfReader, ReadsDocumentsThatAreCutOffAnywhere)
{
    for (const QByteArray &sample : samples()) {
        for (qsizetype length = 0; length <= sample.size(); ++length)
            expectSoundOrRefused(sample.first(length));
    }
}

TEST(RtfReader, ReadsDocumentsWithAnyByteChanged)
{
    for (const QByteArray &sample : samples()) {
        for (qsizetype at = 0; at < sample.size(); ++at) {
            for (const char byte :
                {'\0', '{', '}', '\\', '\'', '*', ';', ' ', '9', '-', 'u', '\xAC', '\x83'}) {
                QByteArray changed = sample;
                changed[at] = byte;
                expectSoundOrRefused(changed);
            }
        }
    }
}

TEST(RtfReader, ReadsGroupsOfAnyDepth)
{
    constexpr qsizetype depth = 100'000;
    const QByteArray open = QByteArray("{\\b").repeated(depth);
    const QByteArray closed = QByteArray("}").repeated(depth);
    EXPECT_EQ(textOf('a' + open + " b" + closed + 'c'), QStringLiteral("abc"));
    EXPECT_FALSE(attributesAt('a' + open + " b" + closed + 'c', u'c').font.has_value());
    EXPECT_EQ(read("{\\rtf1 a" + open + " b").string(), QStringLiteral("ab"));
}

TEST(RtfReader, KeepsFormatsToTheirGroupUpToAMaximumDepth)
{
    const auto looksBehindAGroup = [](qsizetype depth) {
        return attributesAt(QByteArray("{").repeated(depth) + R"({\b}x)").font.has_value();
    };
    EXPECT_FALSE(looksBehindAGroup(9'000));
    EXPECT_TRUE(looksBehindAGroup(11'000));
}

TEST(RtfReader, ReadsAnyNumberOfFonts)
{
    QByteArray fonts;
    QByteArray body;
    for (int i = 0; i < 100'000; ++i) {
        const QByteArray number = QByteArray::number(i);
        fonts += "{\\f" + number + " Font " + number + ";}";
        body += "\\f" + number + " x";
    }
    const AttributedString text = read(document("{\\fonttbl" + fonts + '}' + body));
    EXPECT_EQ(text.length(), 100'000);
    EXPECT_EQ(text.attributesAt(49'999).font->family, QStringLiteral("Font 49999"));
    EXPECT_EQ(text.attributesAt(65'535).font->family, QStringLiteral("Font 65535"));
    EXPECT_EQ(text.attributesAt(65'536).font->family, QString());
}

TEST(RtfReader, LimitsTheDistinctAttributesOfADocument)
{
    QByteArray body;
    for (int i = 1; i <= 150'000; ++i)
        body += "\\fs" + QByteArray::number(i) + " x";
    const AttributedString text = read(document(body));
    EXPECT_EQ(text.length(), 150'000);
    EXPECT_EQ(text.attributesAt(99'999).font->pointSize, 50'000);
    EXPECT_EQ(text.distinctAttributes().size(), 100'000U);
    EXPECT_EQ(text.attributesAt(149'999).font->pointSize, 50'000);
}

TEST(RtfReader, LimitsTheTabStopsOfAllAttributes)
{
    QByteArray stops;
    for (int i = 1; i <= 256; ++i)
        stops += "\\tx" + QByteArray::number(i);
    QByteArray body;
    for (int i = 1; i <= 10'000; ++i)
        body += "\\li" + QByteArray::number(i) + " x";
    const AttributedString text = read(document(stops + body));
    EXPECT_EQ(text.length(), 10'000);
    EXPECT_LE(text.distinctAttributes().size() * 256, 2'000'000U);
    EXPECT_GE(text.distinctAttributes().size() * 256, 1'900'000U);
}

TEST(RtfReader, ClampsNumbersTo32Bits)
{
    EXPECT_EQ(styleAt(R"(\li99999999999999999999 x)").headIndent, INT32_MAX / 20.0);
    EXPECT_EQ(styleAt(R"(\li-99999999999999999999 x)").headIndent, INT32_MIN / 20.0);
    EXPECT_EQ(textOf(R"(\uc99999999999999999999\u228 everything{ but this})"), QStringLiteral(u"ä but this"));
}

TEST(RtfReader, ReadsLongRunsOfAnything)
{
    const QByteArray pieces[] = {"x", " ", "{", "}", "{}", "\\", "\\\\", "\\'", "\\'e9", "\\'83", "\xE9",
        "\\*", "\\b", "\\b x", "{\\b x}", "\\u228?", "\\par", "\\cell", "\\row", "\\tx1", "\\f1", "\\bin1 ",
        "\\uc9", "\r\n", "{\\f1 x;}", "{\\*\\x", "{\\footnote x}", "{{\\NeXTGraphic x}\\'ac}", "{\\fonttbl",
        "{\\upr", "\\qbyfont1", "{\\qbyfont1 1;400;0;0;0}", "1", "a1", ";", "\\lang1 \\lang2 "};
    for (const QByteArray &piece : pieces) {
        const QByteArray run = piece.repeated(longRun / 8 / piece.size());
        for (const char *before :
            {"", "\\ansicpg932 ", "{\\fonttbl{\\f1 ", "{{\\NeXTGraphic ", "{\\*\\qbyexact{\\qbyfont1 "})
            expectSoundOrRefused("{\\rtf1\\ansi" + (before + run));
    }
}

TEST(RtfReader, ReadsALongTextWhole)
{
    const QByteArray line = "one two \\'e9\\par\n";
    const AttributedString text = read(document(line.repeated(longRun / line.size())));
    EXPECT_EQ(text.string(), QStringLiteral(u"one two é\n").repeated(longRun / line.size()));
    EXPECT_EQ(text.runCount(), 1);
}

TEST(RtfReader, RefusesDocumentsThatAreTooLong)
{
    constexpr size_t length = INT32_MAX;
    void *pages =
        ::mmap(nullptr, length, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    ASSERT_NE(pages, MAP_FAILED);
    std::memcpy(pages, "{\\rtf1", 6);
    const QByteArrayView bytes(static_cast<const char *>(pages), static_cast<qsizetype>(length));
    EXPECT_EQ(readRtf(bytes).error().cause, Cause::TooLong);
    ::munmap(pages, length);
}

TEST(RtfReader, ReportsThatMemoryHasRunOut)
{
    if (isSanitized)
        GTEST_SKIP() << "a sanitized program cannot run under a limit of its address space";
    const QByteArray rtf = document(QByteArray(qsizetype{64} * 1'048'576, 'x'));
    const auto readWithLittleMemory = [&rtf] {
        size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        constexpr size_t pageSize = 4096;
        const rlimit limit{pages * pageSize + size_t{16} * 1'048'576, RLIM_INFINITY};
        ::setrlimit(RLIMIT_AS, &limit);
        const Result<AttributedString, DocumentError> result = readRtf(rtf);
        ::_exit(!result && result.error().cause == Cause::NotEnoughMemory ? 0 : 1);
    };
    EXPECT_EXIT(readWithLittleMemory(), ::testing::ExitedWithCode(0), "");
}
