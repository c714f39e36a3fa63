// SPDX-License-Identifier: MIT
#include "documents/flat_text/FlatTextFormat.h"
#include "documents/flat_text/FlatTextReader.h"
#include "documents/flat_text/FlatTextWriter.h"
#include "documents/reading/DocumentReader.h"
#include "tests/documents/ForeignDocuments.h"
#include "tests/documents/rtf/writer/RandomText.h"
#include "tests/documents/rtf/writer/TextDifference.h"
#include "tests/harness/QuillbayTest.h"

#include <cstddef>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

namespace {

using namespace FlatTextFormat;

AttributedString writeAndRead(const AttributedString &text)
{
    return readFlatText(flatTextOf(text)).value();
}

/// A text in which every kind of field has a value.
AttributedString fullText()
{
    const TextAttributes plain;
    TextAttributes rich;
    rich.font = FontAttributes{QStringLiteral("Garamond"), 11.5, 700, FontSlant::Oblique, 0.25, -3};
    rich.paragraphStyle.alignment = TextAlignment::Justified;
    rich.paragraphStyle.direction = WritingDirection::RightToLeft;
    rich.paragraphStyle.firstLineHeadIndent = 18;
    rich.paragraphStyle.tabStops = {{36, TabAlignment::Left}, {72, TabAlignment::Decimal}};
    rich.language = QStringLiteral("ar-EG");
    TextAttributes attached = rich;
    attached.attachment =
        std::make_shared<const Attachment>(Attachment{QStringLiteral("picture.png"), "contents"});
    AttributedStringBuilder builder;
    builder.append(QStringLiteral("plain "), plain);
    builder.append(QStringLiteral("rich "), rich);
    builder.append(QString(QChar(attachmentCharacter)), attached);
    builder.append(QStringLiteral(" plain again"), plain);
    return builder.build();
}

Header headerOf(const QByteArray &bytes)
{
    Header header{};
    std::memcpy(&header, bytes.constData(), sizeof header);
    return header;
}

template <typename Value>
QByteArray withValue(QByteArray bytes, size_t place, Value value)
{
    std::memcpy(bytes.data() + place, &value, sizeof value);
    return bytes;
}

// The places of the parts of fullText(), which has three sets of attributes.
constexpr size_t secondRecord = sizeof(Header) + sizeof(AttributesRecord);
constexpr size_t firstTabStop = sizeof(Header) + 3 * sizeof(AttributesRecord);
constexpr size_t firstRun = firstTabStop + 4 * sizeof(TabStopRecord);
constexpr size_t firstAttachment = firstRun + 4 * sizeof(RunRecord);

} // namespace

TEST(FlatText, RandomTextsStayEqual)
{
    EXPECT_EQ(writeAndRead(AttributedString()), AttributedString());
    for (unsigned seed = 1; seed < 2'000; ++seed) {
        const AttributedString text = RandomText(seed).text(8, 12);
        ASSERT_EQ(differenceBetween(text, writeAndRead(text)), QString()) << "seed " << seed;
    }
    const AttributedString large = RandomText(5).text(20'000, 40);
    EXPECT_EQ(differenceBetween(large, writeAndRead(large)), QString());
    EXPECT_EQ(differenceBetween(fullText(), writeAndRead(fullText())), QString());
}

TEST(FlatText, KeepsUnpairedSurrogatesAndNulCharacters)
{
    const AttributedString text(QStringLiteral("a") + QChar(0xD800) + QChar(0) + QChar(0xDC00));
    EXPECT_EQ(writeAndRead(text), text);
}

TEST(FlatText, ForeignDocumentsStayEqual)
{
    if (corporaFolder().isEmpty())
        GTEST_SKIP() << "QUILLBAY_CORPORA names no folder with documents";
    int count = 0;
    forEachForeignDocument([&](DocumentKind kind, const QByteArray &bytes, const QString &path) {
        const Result<AttributedString, DocumentError> text = readDocument(kind, bytes);
        if (!text)
            return;
        ++count;
        ASSERT_EQ(differenceBetween(text.value(), writeAndRead(text.value())), QString()) << qPrintable(path);
    });
    EXPECT_GT(count, 10);
}

TEST(FlatText, IsWrittenOnlyWhereItFits)
{
    const QByteArray bytes = flatTextOf(fullText());
    std::vector<char> memory(static_cast<size_t>(bytes.size()) + 1, 'x');
    EXPECT_EQ(writeFlatText(fullText(), memory), bytes.size());
    EXPECT_EQ(QByteArrayView(memory.data(), bytes.size()), bytes);
    EXPECT_EQ(memory.back(), 'x');
    memory.assign(memory.size(), 'x');
    EXPECT_EQ(writeFlatText(fullText(), std::span(memory).first(memory.size() - 2)), std::nullopt);
    EXPECT_EQ(std::ranges::count(memory, 'x'), std::ssize(memory));
}

TEST(FlatText, IsReadAtAnyAddress)
{
    const QByteArray bytes = "x" + flatTextOf(fullText());
    EXPECT_EQ(readFlatText(QByteArrayView(bytes).sliced(1)).value(), fullText());
}

TEST(FlatText, IsRefusedWhereItIsCutOrContinued)
{
    const QByteArray bytes = flatTextOf(fullText());
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(readFlatText(bytes.first(length))) << length;
    EXPECT_FALSE(readFlatText(bytes + '\0'));
}

TEST(FlatText, IsRefusedWhereACountOrLengthIsWrong)
{
    const QByteArray bytes = flatTextOf(fullText());
    const Header header = headerOf(bytes);
    EXPECT_EQ(header.attributesCount, 3U);
    EXPECT_EQ(header.tabStopCount, 4U);
    EXPECT_EQ(header.runCount, 4U);
    EXPECT_EQ(header.attachmentCount, 1U);
    for (size_t field = 0; field < sizeof(Header) / sizeof(quint32); ++field)
        for (const quint32 value : {0U, 2U, 0x7FFFFFFFU, 0x80000000U, UINT32_MAX})
            EXPECT_FALSE(readFlatText(withValue(bytes, field * sizeof(quint32), value)))
                << field << ' ' << value;
    constexpr size_t length = firstAttachment + offsetof(AttachmentRecord, contentsLength);
    for (const quint64 value : {quint64{0}, quint64{7}, quint64{9}, quint64{UINT64_MAX}})
        EXPECT_FALSE(readFlatText(withValue(bytes, length, value))) << value;
}

TEST(FlatText, IsRefusedWhereAnIndexIsOutOfRange)
{
    const QByteArray bytes = flatTextOf(fullText());
    const quint32 strings = headerOf(bytes).stringCount;
    constexpr size_t family = secondRecord + offsetof(AttributesRecord, family);
    constexpr size_t language = secondRecord + offsetof(AttributesRecord, language);
    constexpr size_t attachment = secondRecord + offsetof(AttributesRecord, attachment);
    constexpr size_t fileName = firstAttachment + offsetof(AttachmentRecord, fileName);
    EXPECT_TRUE(readFlatText(withValue(bytes, family, strings - 1)));
    EXPECT_FALSE(readFlatText(withValue(bytes, family, strings)));
    EXPECT_FALSE(readFlatText(withValue(bytes, language, strings)));
    EXPECT_FALSE(readFlatText(withValue(bytes, fileName, strings)));
    EXPECT_TRUE(readFlatText(withValue(bytes, attachment, 1U)));
    EXPECT_FALSE(readFlatText(withValue(bytes, attachment, 2U)));
    EXPECT_FALSE(readFlatText(withValue(bytes, firstRun + offsetof(RunRecord, attributes), 3U)));
}

TEST(FlatText, IsRefusedWhereRunsAreOutOfOrder)
{
    const QByteArray bytes = flatTextOf(fullText());
    constexpr size_t second = firstRun + sizeof(RunRecord);
    EXPECT_FALSE(readFlatText(withValue(bytes, firstRun, 1U)));
    EXPECT_FALSE(readFlatText(withValue(bytes, second, 0U)));
    EXPECT_FALSE(readFlatText(withValue(bytes, second, 11U))) << "the start of the third";
    EXPECT_FALSE(readFlatText(withValue(bytes, second + offsetof(RunRecord, attributes), 0U)))
        << "as the first";
    EXPECT_FALSE(readFlatText(withValue(bytes, firstRun + 3 * sizeof(RunRecord), 24U))) << "beyond the text";
}

TEST(FlatText, IsRefusedWhereANumberIsNotFiniteOrOutOfRange)
{
    const QByteArray bytes = flatTextOf(fullText());
    for (size_t field = 0; field < 10; ++field) {
        const size_t place = secondRecord + field * sizeof(double);
        EXPECT_TRUE(readFlatText(withValue(bytes, place, -1.5))) << field;
        for (const double value :
            {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()})
            EXPECT_FALSE(readFlatText(withValue(bytes, place, value))) << field;
    }
    const auto isRefused = [&](size_t place, quint32 value) {
        return !readFlatText(withValue(bytes, secondRecord + place, value));
    };
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, hasFont), 2));
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, hasFont), 0)) << "although it has a family";
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, weight), 0));
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, weight), 1001));
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, slant), 3));
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, alignment), 5));
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, direction), 3));
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, unused), 1));
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, tabStopCount), 1));
    EXPECT_TRUE(isRefused(offsetof(AttributesRecord, tabStopCount), UINT32_MAX));
    EXPECT_FALSE(readFlatText(withValue(bytes, firstTabStop, 73.0))) << "behind the next one";
    EXPECT_FALSE(readFlatText(withValue(bytes, firstTabStop + offsetof(TabStopRecord, alignment), 4U)));
}

TEST(FlatText, WithChangedBytesIsRefusedOrATextLikeAnyOther)
{
    std::mt19937 random(3);
    const QByteArray sound = flatTextOf(fullText());
    for (int round = 0; round < 20'000; ++round) {
        QByteArray changed = sound;
        for (int change = 0; change < 3; ++change)
            changed[static_cast<qsizetype>(random() % static_cast<size_t>(sound.size()))] =
                static_cast<char>(random());
        if (const auto text = readFlatText(changed)) {
            EXPECT_EQ(differenceBetween(*text, writeAndRead(*text)), QString());
        }
    }
}
