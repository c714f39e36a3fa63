// SPDX-License-Identifier: MIT
#include "platform/views/Window.h"
#include "text_statistics/PageSizeForMeasuringPreviewViewController.h"

#include "tests/harness/QuillbayTest.h"

#include <QStringList>

#include <limits>

namespace {

constexpr QSizeF letter{612, 792};
constexpr double unlimited = std::numeric_limits<double>::max();

} // namespace

/// A loaded preview in a scroll view of 306 by 1000 points, half as wide as a Letter page.
class PagePreview : public ::testing::Test {
protected:
    PagePreview() { m_preview.view()->setFrame({0, 0, 306, 1000}); }

    [[nodiscard]] TextView &column() const { return *m_preview.previewTextView(); }
    [[nodiscard]] FlippedView &page() const { return *m_preview.wrapperView(); }
    [[nodiscard]] QBYScrollView &scrollView() const { return *m_preview.mainScrollView(); }
    [[nodiscard]] QPointF scrollPosition() const { return scrollView().contentView().bounds().topLeft(); }

    PageSizeForMeasuringPreviewViewController m_preview{std::make_shared<LayoutEngine>()};
};

TEST_F(PagePreview, ThePageIsTheDocumentOfTheControllersViewAndHoldsTheColumn)
{
    EXPECT_EQ(m_preview.view().get(), &scrollView());
    EXPECT_EQ(scrollView().documentView(), &page());
    ASSERT_EQ(page().subviews().size(), 1U);
    EXPECT_EQ(page().subviews()[0].get(), &column());
}

TEST_F(PagePreview, DoesNotScrollAndShrinksToNoLessThan15PerCent)
{
    EXPECT_TRUE(scrollView().disableScrolling());
    EXPECT_EQ(scrollView().minMagnification(), 0.15);
    m_preview.setPreviewContentFrameSize({1e5, 1e5}, 0, 0);
    EXPECT_EQ(scrollView().magnification(), 0.15);
}

TEST_F(PagePreview, ThePageIsWhiteAndHasItsOriginAtTheTopLeft)
{
    EXPECT_EQ(page().backgroundColor(), Color::white());
    EXPECT_TRUE(page().isFlipped());
    EXPECT_EQ(page().frame(), QRectF(0, 0, 0, 0));
}

TEST_F(PagePreview, TheColumnIsLightReadOnlyTextOfNoWidthAndUnlimitedHeight)
{
    EXPECT_EQ(column().frame(), QRectF(0, 0, 0, unlimited));
    EXPECT_EQ(column().appearance(), Appearance::Light);
    EXPECT_FALSE(column().isEditable());
    EXPECT_FALSE(column().isSelectable());
    EXPECT_EQ(column().textStorage().attributedString().string(), pagePreviewSampleText());
}

TEST_F(PagePreview, LoadingAgainOnlyPutsTheColumnOnTopAndScrollsToTheTop)
{
    m_preview.setPreviewContentFrameSize(letter, 72, 90);
    const View *const viewBefore = m_preview.view().get();
    const View *const pageBefore = &page();
    const View *const columnBefore = &column();
    column().textStorage().setAttributedString(AttributedString(QStringLiteral("other")));
    page().addSubview(std::make_shared<View>());
    scrollView().contentView().scrollToPoint({10, 20});

    m_preview.loadView();
    EXPECT_EQ(m_preview.view().get(), viewBefore);
    EXPECT_EQ(&scrollView(), viewBefore);
    EXPECT_EQ(&page(), pageBefore);
    EXPECT_EQ(&column(), columnBefore);
    EXPECT_EQ(page().subviews().back().get(), columnBefore);
    EXPECT_EQ(page().subviews().size(), 2U);
    EXPECT_EQ(scrollPosition(), QPointF(0, 0));
    EXPECT_EQ(column().textStorage().attributedString().string(), QStringLiteral("other"));
    EXPECT_EQ(column().frame(), QRectF(72, 0, 450, unlimited));
    EXPECT_EQ(page().frame(), QRectF(0, 0, 612, 792));
    EXPECT_EQ(scrollView().magnification(), 0.5);
}

TEST_F(PagePreview, LoadingCreatesAMissingPageAndKeepsTheColumn)
{
    const std::shared_ptr<TextView> columnBefore = m_preview.previewTextView();
    scrollView().setDocumentView(nullptr);
    ASSERT_EQ(m_preview.wrapperView(), nullptr);

    m_preview.loadView();
    EXPECT_EQ(scrollView().documentView(), &page());
    EXPECT_EQ(page().backgroundColor(), Color::white());
    EXPECT_EQ(m_preview.previewTextView(), columnBefore);
    EXPECT_EQ(columnBefore->superview(), &page());
}

TEST_F(PagePreview, LoadingCreatesAMissingScrollViewWithAPage)
{
    const std::shared_ptr<TextView> columnBefore = m_preview.previewTextView();
    m_preview.setView(nullptr);
    ASSERT_EQ(m_preview.mainScrollView(), nullptr);
    ASSERT_EQ(m_preview.wrapperView(), nullptr);

    m_preview.loadView();
    EXPECT_EQ(m_preview.view().get(), m_preview.mainScrollView());
    EXPECT_TRUE(scrollView().disableScrolling());
    EXPECT_EQ(columnBefore->superview(), &page());
}

TEST_F(PagePreview, TheColumnFillsThePageBetweenTheInsetsAndKeepsItsHeight)
{
    m_preview.setPreviewContentFrameSize(letter, 72, 90);
    EXPECT_EQ(page().frame(), QRectF(0, 0, 612, 792));
    EXPECT_EQ(column().frame(), QRectF(72, 0, 450, unlimited));
    EXPECT_EQ(column().textContainer().width(), 450);

    column().setFrameSize({450, 5000});
    m_preview.setPreviewContentFrameSize({595, 842}, 0, 0);
    EXPECT_EQ(column().frame(), QRectF(0, 0, 595, 5000));
}

TEST_F(PagePreview, ThePageIsShrunkToFitAndItsTopIsShown)
{
    m_preview.setPreviewContentFrameSize(letter, 72, 90);
    EXPECT_EQ(scrollView().magnification(), 0.5);
    EXPECT_EQ(scrollPosition(), QPointF(0, 0));

    m_preview.view()->setFrameSize({1000, 198});
    m_preview.setPreviewContentFrameSize(letter, 72, 90);
    EXPECT_EQ(scrollView().magnification(), 0.25);
    EXPECT_EQ(scrollPosition(), QPointF(0, 0));
}

TEST_F(PagePreview, InsetsThatLeaveTheColumnNoWidthChangeNothing)
{
    m_preview.setPreviewContentFrameSize(letter, 72, 90);
    scrollView().contentView().scrollToPoint({3, 4});
    const double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const auto &[left, right] : std::initializer_list<std::pair<double, double>>{
             {400, 195}, {595, 0}, {0, 595}, {400, 400}, {notANumber, 0}}) {
        m_preview.setPreviewContentFrameSize({595, 842}, left, right);
        EXPECT_EQ(page().frame(), QRectF(0, 0, 612, 792)) << left;
        EXPECT_EQ(column().frame(), QRectF(72, 0, 450, unlimited)) << left;
        EXPECT_EQ(scrollView().magnification(), 0.5) << left;
        EXPECT_EQ(scrollPosition(), QPointF(3, 4)) << left;
    }
}

TEST_F(PagePreview, InsetsThatLeaveTheColumnHalfAPointAreUsed)
{
    m_preview.setPreviewContentFrameSize(letter, 300, 311.5);
    EXPECT_EQ(column().frame(), QRectF(300, 0, 0.5, unlimited));
}

TEST_F(PagePreview, ReportsTheSpaceBesideTheShrunkPage)
{
    m_preview.setPreviewContentFrameSize(letter, 72, 90);
    EXPECT_EQ(m_preview.embeddedTextViewOffsetMagnifiedWidth(), 0);
    m_preview.view()->setFrameSize({1000, 198});
    m_preview.setPreviewContentFrameSize(letter, 72, 90);
    EXPECT_EQ(m_preview.embeddedTextViewOffsetMagnifiedWidth(), 1000 - 612 * 0.25);
}

TEST_F(PagePreview, NamesThePageSizeInInches)
{
    EXPECT_EQ(m_preview.formattedPageSizeInInches(), QStringLiteral("0.0 x 0.0 inches"));
    m_preview.setPreviewContentFrameSize(letter, 72, 72);
    EXPECT_EQ(m_preview.formattedPageSizeInInches(), QStringLiteral("8.5 x 11.0 inches"));
    m_preview.setPreviewContentFrameSize({595, 842}, 72, 72);
    EXPECT_EQ(m_preview.formattedPageSizeInInches(), QStringLiteral("8.264 x 11.694 inches"));
}

TEST_F(PagePreview, NamesThePageSizeInInchesAtEveryScaleFactor)
{
    Window window;
    window.setBackingScaleFactor(2);
    window.setContentView(m_preview.view());
    m_preview.setPreviewContentFrameSize(letter, 72, 72);
    EXPECT_EQ(m_preview.formattedPageSizeInInches(), QStringLiteral("8.5 x 11.0 inches"));
}

TEST(PagePreviewBeforeLoading, HasNoViewsAndAPageOfNoSize)
{
    const PageSizeForMeasuringPreviewViewController preview(std::make_shared<LayoutEngine>());
    EXPECT_EQ(preview.previewTextView(), nullptr);
    EXPECT_EQ(preview.wrapperView(), nullptr);
    EXPECT_EQ(preview.mainScrollView(), nullptr);
    EXPECT_EQ(preview.embeddedTextViewOffsetMagnifiedWidth(), 0);
    EXPECT_EQ(preview.formattedPageSizeInInches(), QStringLiteral("0.0 x 0.0 inches"));
}

TEST(PagePreviewBeforeLoading, LoadsItsViewsForTheFirstLayout)
{
    PageSizeForMeasuringPreviewViewController preview(std::make_shared<LayoutEngine>());
    preview.setPreviewContentFrameSize(letter, 612, 0);
    EXPECT_FALSE(preview.isViewLoaded());
    preview.setPreviewContentFrameSize(letter, 72, 72);
    EXPECT_EQ(preview.previewTextView()->frame().width(), 468);
}

TEST(SampleText, HasALineEndAndFourEqualParagraphsOf445CharactersWithoutAFinalLineEnd)
{
    const QString text = pagePreviewSampleText();
    EXPECT_EQ(text.size(), 1784);
    const QStringList paragraphs = text.split(u'\n');
    ASSERT_EQ(paragraphs.size(), 5);
    EXPECT_TRUE(paragraphs[0].isEmpty());
    EXPECT_EQ(paragraphs[1].size(), 445);
    EXPECT_TRUE(
        paragraphs[1].startsWith(QStringLiteral("Lorem ipsum dolor sit amet, consectetur adipiscing elit")));
    EXPECT_TRUE(paragraphs[1].endsWith(QStringLiteral("id est laborum.")));
    for (int i = 2; i < 5; ++i)
        EXPECT_EQ(paragraphs[i], paragraphs[1]);
}
