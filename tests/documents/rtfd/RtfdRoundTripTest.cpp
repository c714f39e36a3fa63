// SPDX-License-Identifier: MIT
// What RTFDFromRange() writes, readFlatRtfd() turns back into an equal text.
#include "documents/rtfd/RtfdReader.h"
#include "documents/rtfd/RtfdWriter.h"

#include "tests/documents/rtf/writer/RandomText.h"
#include "tests/documents/rtf/writer/TextDifference.h"
#include "tests/harness/QuillbayTest.h"

namespace {

AttributedString writtenAndRead(const AttributedString &text, qsizetype start, qsizetype length)
{
    return readFlatRtfd(RTFDFromRange(text, start, length).value()).value();
}

AttributedString writtenAndRead(const AttributedString &text)
{
    return writtenAndRead(text, 0, text.length());
}

} // namespace

TEST(RtfdRoundTrip, SmallRandomTextsStayEqual)
{
    for (unsigned seed = 10'000; seed < 13'000; ++seed) {
        const AttributedString text = RandomText(seed).text(8, 12);
        ASSERT_EQ(differenceBetween(text, writtenAndRead(text)), QString()) << "seed " << seed;
    }
}

TEST(RtfdRoundTrip, LargeRandomTextsStayEqual)
{
    for (unsigned seed = 10; seed < 14; ++seed) {
        const AttributedString text = RandomText(seed).text(20'000, 40);
        ASSERT_EQ(differenceBetween(text, writtenAndRead(text)), QString()) << "seed " << seed;
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
            differenceBetween(rangeOf(text, start, length), writtenAndRead(text, start, length)), QString())
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
    EXPECT_EQ(differenceBetween(text, writtenAndRead(text)), QString());
}

TEST(RtfdRoundTrip, AttachmentsOnOtherCharactersAreLeftOut)
{
    TextAttributes attributes;
    attributes.language = QStringLiteral("de");
    const AttributedString without(QStringLiteral("abc"), attributes);
    attributes.attachment = std::make_shared<const Attachment>(Attachment{QStringLiteral("a.png"), "data"});
    EXPECT_EQ(differenceBetween(without, writtenAndRead(AttributedString(QStringLiteral("abc"), attributes))),
        QString());
}
