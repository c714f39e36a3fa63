// SPDX-License-Identifier: MIT
#include "text_statistics/TextView.h"

#include "tests/harness/QuillbayTest.h"

class TextViewTest : public ::testing::Test {
protected:
    [[nodiscard]] int numberOfLines()
    {
        LayoutManager &layoutManager = m_view.layoutManager();
        int lines = 0;
        for (qsizetype glyph = 0; glyph < layoutManager.numberOfGlyphs(); ++lines)
            glyph = layoutManager.lineFragmentRectForGlyphAtIndex(glyph).effectiveRange.end();
        return lines;
    }

    TextView m_view{QRectF(5, 6, 100, 20), std::make_shared<LayoutEngine>()};
};

TEST_F(TextViewTest, ItsTextContainerIsAsWideAsItsFrame)
{
    EXPECT_EQ(m_view.textContainer().width(), 100);
    double widthSeenByListeners = 0;
    QObject::connect(&m_view, &View::frameDidChange, &m_view,
        [&] { widthSeenByListeners = m_view.textContainer().width(); });
    m_view.setFrameSize({70, 20});
    EXPECT_EQ(m_view.textContainer().width(), 70);
    EXPECT_EQ(widthSeenByListeners, 70);
}

TEST_F(TextViewTest, LaysItsTextOutAgainInANewWidth)
{
    m_view.textStorage().setAttributedString(AttributedString(QStringLiteral("abc")));
    EXPECT_EQ(numberOfLines(), 1);
    m_view.setFrameSize({0, 20}); // room for one character a line
    EXPECT_EQ(numberOfLines(), 3);
}

TEST_F(TextViewTest, LaysANewTextOut)
{
    m_view.textStorage().setAttributedString(AttributedString(QStringLiteral("a\nb\nc\n")));
    EXPECT_EQ(numberOfLines(), 3);
    m_view.textStorage().setAttributedString(AttributedString());
    EXPECT_EQ(numberOfLines(), 0);
}

TEST_F(TextViewTest, IsEditableSelectableAndFollowsTheSystemByDefault)
{
    EXPECT_TRUE(m_view.isEditable());
    EXPECT_TRUE(m_view.isSelectable());
    EXPECT_EQ(m_view.appearance(), Appearance::System);
    m_view.setEditable(false);
    m_view.setSelectable(false);
    m_view.setAppearance(Appearance::Light);
    EXPECT_FALSE(m_view.isEditable());
    EXPECT_FALSE(m_view.isSelectable());
    EXPECT_EQ(m_view.appearance(), Appearance::Light);
}
