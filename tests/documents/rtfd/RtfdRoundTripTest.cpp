// SPDX-License-Identifier: MIT
// readFlatRtfd() reads an equal text from the bytes that RTFDFromRange() writes.
#include "documents/rtfd/RtfdReader.h"
#include "documents/rtfd/RtfdWriter.h"

#include "tests/documents/rtf/writer/RandomText.h"
#include "tests/documents/rtf/writer/TextDifference.h"
#include "tests/harness/QuillbayTest.h"

namespace {

AttributedString writeAndRead(const AttributedString &text, qsizetype start, qsizetype length)
{
    return readFlatRtfd(RTFDFromRange(text, start, length).value()).value();
}

AttributedString writeAndRead(const AttributedString &text)
{
    return writeAndRead(text, 0, text.length());
}

} // namespace

TEST(RtfdRoundTrip, SmallRandomTextsStayEqual)
{
    for (unsigned seed = 10'000; seed < 13'000; ++seed) {
        const AttributedString text = RandomText(seed).text(8, 12);
        ASSERT_EQ(differenceBetween(text, writeAndRead(text)), QString()) << "seed " << seed;
    }
}

TEST(RtfdRoundTrip, LargeRandomTextsStayEqual)
{
    for (unsigned seed = 10; seed < 14; ++seed) {
        const AttributedString text = RandomText(seed).text(20'000, 40);
        ASSERT_EQ(differenceBetween(text, writeAndRead(text)), QString()) << "seed " << seed;
    }
}

TEST(RtfdRoundTrip, RangesStayEqual)
{
    std::mt19937 random(2);
    for (unsigned seed = 20'000; seed < 21'000; ++seed) {
        const AttributedString text = RandomText(seed).text(6, 12);
        const auto bound = static_cast<size_t>(text.length()) + 1;
        const auto start = static_cast<qsizetype>(random() % bound);
        const auto length = static_cast<qsizetype>(random() % bound);
        ASSERT_EQ(
            differenceBetween(rangeOf(text, start, length), writeAndRead(text, start, length)), QString())
            << "seed " << seed;
    }
}

TEST(RtfdRoundTrip, AttachmentsOfOneNameAndSizeStayApart)
{
    AttributedStringBuilder builder;
    for (const char *contents : {"first", "2nd..", "third"}) {
        TextAttributes attributes;
        attributes.attachment =
            std::make_shared<const Attachment>(Attachment{QStringLiteral("a.png"), contents});
        builder.append(QStringLiteral("\uFFFC"), attributes);
    }
    const AttributedString text = builder.build();
    EXPECT_EQ(differenceBetween(text, writeAndRead(text)), QString());
}

TEST(RtfdRoundTrip, AttachmentsOnOtherCharactersAreLeftOut)
{
    TextAttributes attributes;
    attributes.language = QStringLiteral("de");
    const AttributedString without(QStringLiteral("abc"), attributes);
    attributes.attachment = std::make_shared<const Attachment>(Attachment{QStringLiteral("a.png"), "data"});
    EXPECT_EQ(differenceBetween(without, writeAndRead(AttributedString(QStringLiteral("abc"), attributes))),
        QString());
}
