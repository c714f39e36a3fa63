// SPDX-License-Identifier: MIT
#include "platform/styled_text/AttributedString.h"

#include <gtest/gtest.h>

namespace {

TextAttributes bold()
{
    TextAttributes attributes;
    attributes.font = FontAttributes{QStringLiteral("Nimbus Sans"), 14, 700};
    return attributes;
}

} // namespace

TEST(AttributedString, AnEmptyTextHasNoRuns)
{
    const AttributedString text(QString(), bold());
    EXPECT_TRUE(text.isEmpty());
    EXPECT_EQ(text.runCount(), 0);
    EXPECT_EQ(text, AttributedString());
}

TEST(AttributedString, NeighboursWithEqualAttributesBecomeOneRun)
{
    AttributedStringBuilder builder;
    builder.append(u"one ", bold());
    builder.append(u"two ", bold());
    builder.append(u"", {});
    builder.append(u"three", {});
    const AttributedString text = builder.build();
    EXPECT_EQ(text.string(), QStringLiteral("one two three"));
    ASSERT_EQ(text.runCount(), 2);
    EXPECT_EQ(text.run(0).length, 8);
    EXPECT_EQ(text.run(1).start, 8);
    EXPECT_EQ(text.run(1).length, 5);
}

TEST(AttributedString, StoresDistinctAttributesOnce)
{
    AttributedStringBuilder builder;
    for (int i = 0; i < 1000; ++i) {
        builder.append(u"a", bold());
        builder.append(u"b", {});
    }
    const AttributedString text = builder.build();
    EXPECT_EQ(text.runCount(), 2000);
    EXPECT_EQ(text.distinctAttributes().size(), 2U);
    EXPECT_EQ(text.run(0).attributesIndex, text.run(1998).attributesIndex);
}

TEST(AttributedString, EveryPositionBelongsToItsRun)
{
    AttributedStringBuilder builder;
    builder.append(u"ab", bold());
    builder.append(u"c", {});
    builder.append(u"de", bold());
    const AttributedString text = builder.build();
    const qsizetype runs[] = {0, 0, 1, 2, 2};
    for (qsizetype position = 0; position < 5; ++position)
        EXPECT_EQ(text.runIndexAt(position), runs[position]) << position;
    EXPECT_EQ(text.attributesAt(2), TextAttributes());
    EXPECT_EQ(text.attributesAt(4), bold());
}

TEST(AttributedString, EqualityComparesTextAndAttributesAtEveryPosition)
{
    AttributedStringBuilder builder;
    builder.append(u"ab", bold());
    builder.append(u"c", {});
    const AttributedString text = builder.build();

    builder.append(u"", {}); // build() has reset the builder
    builder.append(u"a", bold());
    builder.append(u"b", bold());
    builder.append(u"c", {});
    EXPECT_EQ(text, builder.build());

    builder.append(u"a", bold());
    builder.append(u"bc", {});
    EXPECT_FALSE(text == builder.build());
    EXPECT_FALSE(text == AttributedString(QStringLiteral("abc")));
    builder.append(u"ab", bold());
    builder.append(u"d", {});
    EXPECT_FALSE(text == builder.build());
}

TEST(AttributedString, EqualityDistinguishesStylesThatOccurTwice)
{
    AttributedStringBuilder builder;
    builder.append(u"a", bold());
    builder.append(u"b", {});
    builder.append(u"c", bold());
    const AttributedString text = builder.build();
    TextAttributes other = bold();
    other.language = QStringLiteral("de");
    builder.append(u"a", bold());
    builder.append(u"b", {});
    builder.append(u"c", other);
    EXPECT_FALSE(text == builder.build());
}

TEST(AttributedString, AppendingStyledTextKeepsItsRuns)
{
    AttributedStringBuilder builder;
    builder.append(u"ab", bold());
    builder.append(u"c", {});
    const AttributedString text = builder.build();
    builder.append(text);
    builder.append(text);
    const AttributedString twice = builder.build();
    EXPECT_EQ(twice.string(), QStringLiteral("abcabc"));
    EXPECT_EQ(twice.runCount(), 4);
    EXPECT_EQ(twice.distinctAttributes().size(), 2U);
    EXPECT_EQ(twice.attributesAt(3), bold());
}

TEST(TextAttributes, AttachmentsCompareByContent)
{
    TextAttributes one;
    one.attachment = std::make_shared<const Attachment>(Attachment{QStringLiteral("a.png"), "data"});
    TextAttributes same = one;
    same.attachment = std::make_shared<const Attachment>(*one.attachment);
    TextAttributes other = one;
    other.attachment = std::make_shared<const Attachment>(Attachment{QStringLiteral("a.png"), "date"});
    EXPECT_EQ(one, same);
    EXPECT_EQ(qHash(one), qHash(same));
    EXPECT_FALSE(one == other);
    EXPECT_FALSE(one == TextAttributes());
}

TEST(TextAttributes, EveryFieldCountsInComparison)
{
    const TextAttributes plain;
    TextAttributes changed = plain;
    changed.paragraphStyle.tabStops = {{72, TabAlignment::Decimal}};
    EXPECT_FALSE(plain == changed);
    changed = plain;
    changed.paragraphStyle.headIndent = 1;
    EXPECT_FALSE(plain == changed);
    changed = plain;
    changed.language = QStringLiteral("de");
    EXPECT_FALSE(plain == changed);
    changed = plain;
    changed.font = FontAttributes{};
    EXPECT_FALSE(plain == changed);
}
