// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdReader.h"

#include "tests/documents/rtfd/FlatBytes.h"
#include "tests/harness/QuillbayTest.h"

#include <chrono>

using namespace FlatBytes;

namespace {

const QByteArray rtf = "{\\rtf1\\ansi a{{\\NeXTGraphic one.png \\width20 \\height20}\\'ac}b}";

AttributedString textOf(const QByteArray &bytes)
{
    const Result<AttributedString, DocumentError> text = readFlatRtfd(bytes);
    EXPECT_TRUE(text) << causeText(text.error()).toStdString();
    return text ? text.value() : AttributedString();
}

QString causeFor(const QByteArray &bytes)
{
    const Result<AttributedString, DocumentError> text = readFlatRtfd(bytes);
    return text ? QStringLiteral("none") : causeText(text.error());
}

const QString damaged = QStringLiteral("is a damaged RTFD; save it again");

/// The attachment in the RTF above; null where there is none.
std::shared_ptr<const Attachment> attachmentIn(const AttributedString &text)
{
    EXPECT_EQ(text.string(), QStringLiteral("a\uFFFCb"));
    return text.length() == 3 ? text.attributesAt(1).attachment : nullptr;
}

} // namespace

TEST(FlatRtfd, AFileIsTheContentsOfTheAttachmentOfItsName)
{
    const AttributedString text =
        textOf(rtfd({{"TXT.rtf", file(rtf)}, {"two.png", file("second")}, {"one.png", file("first")}}));
    ASSERT_TRUE(attachmentIn(text));
    EXPECT_EQ(*attachmentIn(text), (Attachment{QStringLiteral("one.png"), "first"}));
    EXPECT_EQ(text.attributesAt(0).attachment, nullptr);
    EXPECT_EQ(text.attributesAt(2).attachment, nullptr);
}

TEST(FlatRtfd, TheOrderOfTheEntriesDoesNotMatter)
{
    EXPECT_EQ(textOf(rtfd({{"one.png", file("first")}, {"TXT.rtf", file(rtf)}})),
        textOf(rtfd({{"TXT.rtf", file(rtf)}, {"one.png", file("first")}})));
}

TEST(FlatRtfd, TheFileOfAttributesIsIgnored)
{
    EXPECT_EQ(textOf(rtfd({{"TXT.rtf", file("{\\rtf1 abc}")}, {".", file("nonsense")}})).string(),
        QStringLiteral("abc"));
    EXPECT_EQ(textOf(rtfd({{"TXT.rtf", file("{\\rtf1 abc}")}, {".", {}}})).string(), QStringLiteral("abc"));
}

TEST(FlatRtfd, BytesAfterTheLastBlockAreIgnored)
{
    EXPECT_EQ(textOf(rtfd({{"TXT.rtf", file("{\\rtf1 abc}") + "xyz"}}) + QByteArray(7, '\0')).string(),
        QStringLiteral("abc"));
}

TEST(FlatRtfd, ALengthMayBePadded)
{
    for (const quint32 padding : {0U, 1U, 5U, 4096U}) {
        const AttributedString text = textOf(rtfd({{"TXT.rtf", word(1) + withPaddedLength(rtf, padding)},
            {"one.png", word(1) + withPaddedLength("first", padding)}}));
        ASSERT_TRUE(attachmentIn(text));
        EXPECT_EQ(attachmentIn(text)->contents, "first");
    }
    const QByteArray block = file("{\\rtf1 abc}");
    EXPECT_EQ(textOf("rtfd" + word(0) + word(3) + word(1) + withPaddedLength("TXT.rtf", 3)
                  + word(static_cast<quint32>(block.size())) + block)
                  .string(),
        QStringLiteral("abc"));
}

TEST(FlatRtfd, AMissingAttachmentLeavesItsCharacter)
{
    EXPECT_EQ(attachmentIn(textOf(rtfd({{"TXT.rtf", file(rtf)}}))), nullptr);
    EXPECT_EQ(attachmentIn(textOf(rtfd({{"TXT.rtf", file(rtf)}, {"ONE.png", file("first")}}))), nullptr);
}

TEST(FlatRtfd, AnAttachmentWhoseBlockIsDamagedCountsAsMissing)
{
    for (const QByteArray &block :
        {QByteArray(), word(1), word(1) + word(6) + "first", word(1) + word(0xFFFFFFFF) + "first",
            word(1) + word(0x80000000), word(1) + word(0x80000000) + word(1)})
        EXPECT_EQ(attachmentIn(textOf(rtfd({{"TXT.rtf", file(rtf)}, {"one.png", block}}))), nullptr);
}

TEST(FlatRtfd, AnAttachmentThatIsAFolderHasNoContents)
{
    const QByteArray inner = folder({{"one.png", file("inner")}, {"more", folder({{"x", file("y")}})}});
    const AttributedString text = textOf(rtfd({{"one.png", inner}, {"TXT.rtf", file(rtf)}}));
    ASSERT_TRUE(attachmentIn(text));
    EXPECT_EQ(*attachmentIn(text), (Attachment{QStringLiteral("one.png"), {}}));
}

TEST(FlatRtfd, OfEqualNamesTheFirstCounts)
{
    const AttributedString text = textOf(rtfd({{"TXT.rtf", file(rtf)}, {"TXT.rtf", file("{\\rtf1 other}")},
        {"one.png", file("first")}, {"one.png", file("second")}}));
    ASSERT_TRUE(attachmentIn(text));
    EXPECT_EQ(attachmentIn(text)->contents, "first");
}

TEST(FlatRtfd, NamesThatNoFileInAFolderCanHaveAreRefused)
{
    for (const QByteArray &name : {QByteArray("../one.png"), QByteArray("folder/one.png"),
             QByteArray("/one.png"), QByteArray(".."), QByteArray("."), QByteArray("TXT.rtf")}) {
        const QByteArray named = QByteArray(rtf).replace("one.png", name);
        EXPECT_EQ(attachmentIn(textOf(rtfd({{"TXT.rtf", file(named)}, {name, file("first")}}))), nullptr)
            << name.constData();
    }
}

TEST(FlatRtfd, NamesAreUtf8)
{
    const QByteArray named = QByteArray(rtf).replace("one.png", "\\uc0\\u228 \\u20013 .png");
    const AttributedString text =
        textOf(rtfd({{"TXT.rtf", file(named)}, {"\xC3\xA4\xE4\xB8\xAD.png", file("first")}}));
    ASSERT_TRUE(attachmentIn(text));
    EXPECT_EQ(*attachmentIn(text), (Attachment{QStringLiteral("\u00E4\u4E2D.png"), "first"}));
}

TEST(FlatRtfd, WithoutATextThereIsNone)
{
    const QString noText = QStringLiteral("is an RTFD without TXT.rtf; save it again");
    EXPECT_EQ(causeFor(rtfd({})), noText);
    EXPECT_EQ(causeFor(rtfd({{"txt.rtf", file(rtf)}})), noText);
    EXPECT_EQ(causeFor(rtfd({{"TXT.rtf", folder({{"TXT.rtf", file(rtf)}})}})), noText);
    EXPECT_EQ(causeFor(rtfd({{"TXT.rtf", file("plain text")}})),
        QStringLiteral("is an RTFD whose TXT.rtf is not RTF; save it again"));
}

TEST(FlatRtfd, ItBeginsWithItsNameAndAFolder)
{
    EXPECT_TRUE(looksLikeFlatRtfd(rtfd({})));
    for (const QByteArray &bytes :
        {QByteArray(), QByteArray("rtfd"), QByteArray("{\\rtf1 abc}"), "rtfd" + word(1) + folder({}),
            "rtfd" + word(0) + file(rtf), "rtfx" + word(0) + folder({}), ' ' + rtfd({})}) {
        EXPECT_FALSE(looksLikeFlatRtfd(bytes));
        EXPECT_EQ(causeFor(bytes), QStringLiteral("is not an RTFD"));
    }
}

TEST(FlatRtfd, CutAnywhereItIsDamaged)
{
    const QByteArray whole = rtfd({{"TXT.rtf", file(rtf)}, {"one.png", file("first")}, {".", file("dates")}});
    constexpr qsizetype beginning = 12;
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_EQ(
            causeFor(whole.first(length)), length < beginning ? QStringLiteral("is not an RTFD") : damaged)
            << length;
}

TEST(FlatRtfd, WhateverByteIsChangedItIsReadOrRefused)
{
    const QByteArray whole = rtfd({{"TXT.rtf", file(rtf)}, {"one.png", file("first")}, {".", file("dates")}});
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (const int change : {0x01, 0x80, 0xFF}) {
            QByteArray changed = whole;
            changed[at] = static_cast<char>(changed[at] ^ change);
            const Result<AttributedString, DocumentError> text = readFlatRtfd(changed);
            if (text) {
                EXPECT_LT(text.value().length(), whole.size());
            } else {
                EXPECT_NE(causeText(text.error()), QString());
            }
        }
    }
}

TEST(FlatRtfd, LengthsThatReachBeyondTheEndAreRefused)
{
    const QByteArray begin = "rtfd" + word(0) + word(3);
    const QByteArray block = file("{\\rtf1 abc}");
    const auto size = static_cast<quint32>(block.size());
    for (const quint32 value : {0x80000000U, 0x7FFFFFFFU, 0xFFFFFFFFU, 0xFFFFFFFCU, 0xFFFFFFF0U}) {
        EXPECT_EQ(causeFor(begin + word(value)), damaged); // entries
        EXPECT_EQ(causeFor(begin + word(value) + withLength("TXT.rtf") + word(size) + block), damaged);
        EXPECT_EQ(causeFor(begin + word(1) + word(value) + "TXT.rtf" + word(size) + block), damaged); // name
        EXPECT_EQ(causeFor(begin + word(1) + withLength("TXT.rtf") + word(value) + block), damaged); // block
        EXPECT_EQ(causeFor(rtfd({{"TXT.rtf", word(1) + word(value) + "{\\rtf1 abc}"}})), damaged); // contents
        EXPECT_EQ(causeFor(rtfd(
                      {{"TXT.rtf", word(1) + word(0x80000000) + word(value) + word(0) + "{\\rtf1 abc}"}})),
            damaged);
        EXPECT_EQ(causeFor(rtfd(
                      {{"TXT.rtf", word(1) + word(0x80000000) + word(11) + word(value) + "{\\rtf1 abc}"}})),
            damaged);
    }
}

TEST(FlatRtfd, ABlockIsNoLongerThanItsSizeSays)
{
    const QByteArray first = file("{\\rtf1 abc}");
    const QByteArray second = file("second");
    // The size of the first block covers half of it: its contents would overlap the next one.
    const QByteArray bytes = "rtfd" + word(0) + word(3) + word(2) + withLength("TXT.rtf")
        + withLength("one.png") + word(static_cast<quint32>(first.size()) - 5)
        + word(static_cast<quint32>(second.size()) + 5) + first + second;
    EXPECT_EQ(causeFor(bytes), damaged);
}

TEST(FlatRtfd, DeeplyNestedFoldersCostNoMoreThanTheirBytes)
{
    constexpr int depth = 100'000;
    QByteArray begins;
    // Each folder holds the next; all sizes are as large as can be.
    for (int i = 0; i < depth; ++i)
        begins += word(3) + word(1) + withLength("one.png") + word(0x7FFFFFFF);
    const AttributedString text = textOf(rtfd({{"one.png", begins}, {"TXT.rtf", file(rtf)}}));
    ASSERT_TRUE(attachmentIn(text));
    EXPECT_EQ(attachmentIn(text)->contents, QByteArray());
    EXPECT_EQ(causeFor("rtfd" + word(0) + begins), damaged);
}

TEST(FlatRtfd, AMillionEntriesTakeAMoment)
{
    constexpr quint32 count = 1'000'000;
    const QByteArray block = file("{\\rtf1 abc}");
    QByteArray names = withLength("TXT.rtf");
    for (quint32 i = 1; i < count; ++i)
        names += withLength(QByteArray::number(i % 2 == 0 ? i : 1));
    const QByteArray bytes = "rtfd" + word(0) + word(3) + word(count) + names
        + word(static_cast<quint32>(block.size())) + QByteArray(qsizetype{count - 1} * 4, '\0') + block;
    const auto before = std::chrono::steady_clock::now();
    EXPECT_EQ(textOf(bytes).string(), QStringLiteral("abc"));
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(20));
}

TEST(FlatRtfd, AFileThatManyAttachmentsNameIsCopiedOnce)
{
    const QByteArray one = "{{\\NeXTGraphic one.png \\width20 \\height20}\\'ac}";
    const AttributedString text =
        textOf(rtfd({{"TXT.rtf", file("{\\rtf1 " + one + "x" + one + "}")}, {"one.png", file("first")}}));
    ASSERT_EQ(text.string(), QStringLiteral("\uFFFCx\uFFFC"));
    ASSERT_TRUE(text.attributesAt(0).attachment);
    EXPECT_EQ(text.attributesAt(0).attachment, text.attributesAt(2).attachment);
}
