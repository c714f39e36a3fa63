// SPDX-License-Identifier: MIT
#include "platform/text_layout/LayoutManager.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_layout/FontWorld.h"

#include <thread>

namespace {

class LayoutManagers : public QuillbayTest {
protected:
    void SetUp() override { useOnlyFonts({QStringLiteral("NimbusMonoPS-Regular.otf")}); }

    // 6 points per character.
    static AttributedString makeCourierText(const QString &text, const ParagraphStyle &style = {})
    {
        TextAttributes attributes;
        attributes.font = FontAttributes{.family = QStringLiteral("Courier"), .pointSize = 10};
        attributes.paragraphStyle = style;
        return AttributedString(text, attributes);
    }

    // Counts lines like a caller that knows only glyphs.
    static quint64 walk(LayoutManager &manager)
    {
        quint64 count = 0;
        for (qsizetype glyph = 0; glyph < manager.numberOfGlyphs(); ++count)
            glyph = manager.lineFragmentRectForGlyphAtIndex(glyph).effectiveRange.end();
        return count;
    }
};

TEST_F(LayoutManagers, FindTheLineOfEveryGlyph)
{
    LayoutEngine engine;
    TextStorage storage;
    TextContainer container;
    container.setWidth(24);
    storage.setAttributedString(makeCourierText(QStringLiteral("aa bb\r\ncc\n")));
    LayoutManager manager(engine, storage, container);
    ASSERT_EQ(manager.numberOfGlyphs(), 10);
    const GlyphRange expected[]{{0, 3}, {3, 4}, {7, 3}};
    for (const GlyphRange &range : expected) {
        for (qsizetype glyph = range.start; glyph < range.end(); ++glyph)
            EXPECT_EQ(manager.lineFragmentRectForGlyphAtIndex(glyph).effectiveRange, range) << glyph;
    }
    EXPECT_EQ(manager.lineFragmentRectForGlyphAtIndex(10).effectiveRange, GlyphRange());
    EXPECT_EQ(manager.lineFragmentRectForGlyphAtIndex(-1).effectiveRange, GlyphRange());
}

TEST_F(LayoutManagers, StackLinesFromTheTopDown)
{
    LayoutEngine engine;
    TextStorage storage;
    TextContainer container;
    container.setWidth(300);
    ParagraphStyle style;
    style.paragraphSpacing = 5;
    style.paragraphSpacingBefore = 3;
    style.lineSpacing = 2;
    storage.setAttributedString(makeCourierText(QStringLiteral("a\u2028\nb"), style));
    LayoutManager manager(engine, storage, container);
    const auto first = manager.lineFragmentRectForGlyphAtIndex(0);
    const auto second = manager.lineFragmentRectForGlyphAtIndex(2);
    const auto third = manager.lineFragmentRectForGlyphAtIndex(3);
    EXPECT_EQ(first.rect.topLeft(), QPointF(0, 0));
    EXPECT_EQ(first.rect.width(), 300);
    EXPECT_GT(first.rect.height(), 10 + 2);
    EXPECT_EQ(first.usedRect.width(), 6);
    EXPECT_EQ(second.rect.top(), first.rect.bottom());
    EXPECT_EQ(second.rect.height(), first.rect.height()) << "an empty line is as high as its font";
    EXPECT_EQ(third.rect.top(), second.rect.bottom() + 5 + 3);
}

TEST_F(LayoutManagers, FollowTheirStorageAndContainer)
{
    LayoutEngine engine;
    TextStorage storage;
    TextContainer container;
    LayoutManager manager(engine, storage, container);
    EXPECT_EQ(walk(manager), 0U);
    container.setWidth(60);
    storage.setAttributedString(makeCourierText(QStringLiteral("aaaa bbbb cccc")));
    EXPECT_EQ(walk(manager), 2U);
    container.setWidth(30);
    EXPECT_EQ(walk(manager), 3U);
    storage.setAttributedString(makeCourierText(QStringLiteral("aaaa")));
    EXPECT_EQ(walk(manager), 1U);
    storage.setAttributedString({});
    EXPECT_EQ(walk(manager), 0U);
}

TEST_F(LayoutManagers, CountWhatTheEngineCounts)
{
    LayoutEngine engine;
    TextStorage storage;
    TextContainer container;
    container.setWidth(100);
    storage.setAttributedString(
        makeCourierText(QStringLiteral("some words, \n\n and\tmore\u2028of them ").repeated(50)));
    LayoutManager manager(engine, storage, container);
    EXPECT_EQ(walk(manager), engine.countLines(storage.attributedString(), 100));
}

TEST_F(LayoutManagers, RunOnEveryThreadWithAnEngineOfItsOwn)
{
    const AttributedString text =
        makeCourierText(QStringLiteral("some words and עברית العربية ไทย ").repeated(300));
    const quint64 expected = LayoutEngine().countLines(text, 200);
    std::vector<std::thread> threads;
    std::vector<quint64> counts(4);
    for (quint64 &count : counts)
        threads.emplace_back([&] { count = LayoutEngine().countLines(text, 200); });
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_THAT(counts, ::testing::Each(expected));
}

} // namespace
