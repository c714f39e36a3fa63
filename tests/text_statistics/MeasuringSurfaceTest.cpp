// SPDX-License-Identifier: MIT
#include "text_statistics/MeasuringSurface.h"

#include "platform/printing/PrintSettings.h"
#include "platform/text_layout/LayoutEngine.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/QuillbayTest.h"
#include "text_statistics/StringStatistics.h"

#include <vector>

using ::testing::ElementsAre;
using Preferences = QBYUserDefaultsController;

namespace {

// The oracle: walks through the line fragments of the text view's layout manager.
quint64 linesByGlyphs(LayoutManager &layoutManager)
{
    quint64 lines = 0;
    for (qsizetype glyph = 0; glyph < layoutManager.numberOfGlyphs(); ++lines)
        glyph = layoutManager.lineFragmentRectForGlyphAtIndex(glyph).effectiveRange.end();
    return lines;
}

class NoPrinter final : public PrinterSource {
    Result<Printer, PrinterFailure> ask() override { return PrinterFailure::NoPrinter; }
};

class SilentPrinter final : public PrinterSource {
    Result<Printer, PrinterFailure> ask() override { return PrinterFailure::NotAnswering; }
};

class MeasuringSurfaceTest : public QuillbayTest {
protected:
    quint64 lines(const QString &text, const PageRules &page = letter)
    {
        const quint64 count = m_surface.numberOfLines(AttributedString(text), page);
        EXPECT_EQ(count, linesByGlyphs(m_surface.preview().previewTextView()->layoutManager()));
        return count;
    }

    static PageRules withMargins(double left, double right)
    {
        return {.paperName = {}, .paperSize = {612, 792}, .leftMargin = left, .rightMargin = right};
    }

    static inline const PageRules letter = {
        .paperName = {}, .paperSize = {612, 792}, .leftMargin = 18, .rightMargin = 18};
    static inline const QString longParagraph =
        QStringLiteral("Nobody on the quay had seen it leave. ").repeated(40);

    RecordingLogSink m_log;
    MeasuringSurface m_surface{std::make_shared<LayoutEngine>()};
};

} // namespace

TEST_F(MeasuringSurfaceTest, AnEmptyTextHasNoLines)
{
    EXPECT_EQ(lines(QString()), 0U);
}

TEST_F(MeasuringSurfaceTest, EveryLineEndEndsALineAndTheEmptyLineAfterTheLastDoesNotCount)
{
    EXPECT_EQ(lines(QStringLiteral("a")), 1U);
    EXPECT_EQ(lines(QStringLiteral("a\n")), 1U);
    EXPECT_EQ(lines(QStringLiteral("\n\n")), 2U);
    EXPECT_EQ(lines(QStringLiteral("a\r\nb\u2028c\u2029d\re")), 5U);
}

TEST_F(MeasuringSurfaceTest, ALongParagraphHasSeveralLinesAndMoreWithWiderMargins)
{
    const quint64 wide = lines(longParagraph);
    const quint64 narrow = lines(longParagraph, withMargins(150, 150));
    EXPECT_GT(wide, 1U);
    EXPECT_GT(narrow, wide);
    EXPECT_EQ(lines(longParagraph, withMargins(200, 100)), narrow);
}

TEST_F(MeasuringSurfaceTest, MarginsThatLeaveNoWidthKeepTheColumnOfThePreviousCall)
{
    const quint64 narrow = lines(longParagraph, withMargins(150, 150));
    EXPECT_EQ(lines(longParagraph, withMargins(306, 306)), narrow);
    EXPECT_EQ(lines(longParagraph, withMargins(400, 400)), narrow);
    EXPECT_EQ(m_surface.preview().previewTextView()->frame().width(), 312);
}

TEST_F(MeasuringSurfaceTest, MarginsThatLeaveNoWidthAtTheFirstCallGiveEveryGraphemeALine)
{
    EXPECT_EQ(lines(QStringLiteral("abc"), withMargins(306, 306)), 3U);
}

TEST_F(MeasuringSurfaceTest, KeepsTheTextUntilTheNextCall)
{
    lines(QStringLiteral("one"));
    const TextStorage &storage = m_surface.preview().previewTextView()->textStorage();
    EXPECT_EQ(storage.attributedString().string(), QStringLiteral("one"));
    lines(QStringLiteral("two"));
    EXPECT_EQ(storage.attributedString().string(), QStringLiteral("two"));
}

TEST_F(MeasuringSurfaceTest, TheWindowsFrameIsSetOnlyWhenThePaperHasChanged)
{
    lines(QStringLiteral("a"));
    EXPECT_EQ(m_surface.window().frame(), QRectF(0, 0, 612, 792));
    // Setting the frame again would move the window back.
    const QRectF elsewhere(30, 40, 612, 792);
    m_surface.window().setFrame(elsewhere, true, false);
    lines(QStringLiteral("b"), withMargins(100, 100));
    EXPECT_EQ(m_surface.window().frame(), elsewhere);
    EXPECT_EQ(m_surface.preview().view()->frame(), QRectF(0, 0, 612, 792));
    lines(
        QStringLiteral("b"), {.paperName = {}, .paperSize = {595, 842}, .leftMargin = 18, .rightMargin = 18});
    EXPECT_EQ(m_surface.window().frame(), QRectF(0, 0, 595, 842));
    EXPECT_EQ(m_surface.preview().formattedPageSizeInInches(), QStringLiteral("8.264 x 11.694 inches"));
}

TEST_F(MeasuringSurfaceTest, ThePageIsThePreferredPaperWithTheMarginsInPoints)
{
    PrintSettings settings(std::make_shared<NoPrinter>());
    Preferences::setCurrentPaperNamePreference(QStringLiteral("A5"));
    Preferences::setLeftMarginForPaperSizeLineMeasuring(1);
    Preferences::setRightMarginForPaperSizeLineMeasuring(0.5);
    const PageRules page = m_surface.pageOf(settings);
    EXPECT_EQ(page.paperName, QStringLiteral("A5"));
    EXPECT_NEAR(page.paperSize.width(), 420, 1);
    EXPECT_EQ(page.leftMargin, 72);
    EXPECT_EQ(page.rightMargin, 36);
}

TEST_F(MeasuringSurfaceTest, OnASurfaceWithTwoPixelsAPointMarginsAreHalfAsWideAndThePaperIsNot)
{
    PrintSettings settings(std::make_shared<NoPrinter>());
    Preferences::setCurrentPaperNamePreference(QStringLiteral("Letter"));
    Preferences::setLeftMarginForPaperSizeLineMeasuring(1);
    Preferences::setRightMarginForPaperSizeLineMeasuring(0.5);
    EXPECT_EQ(m_surface.window().backingScaleFactor(), 1);
    m_surface.window().setBackingScaleFactor(2);
    const PageRules page = m_surface.pageOf(settings);
    EXPECT_EQ(page.leftMargin, 36);
    EXPECT_EQ(page.rightMargin, 18);
    EXPECT_EQ(page.paperSize, QSizeF(612, 792));
}

TEST_F(MeasuringSurfaceTest, WithoutAPaperTheSizeAndMarginsOfThePrintSettingsAreUsedAndAnErrorIsLogged)
{
    PrintSettings settings(std::make_shared<SilentPrinter>());
    Preferences::setCurrentPaperNamePreference(QStringLiteral("NoSuchPaper"));
    Preferences::setLeftMarginForPaperSizeLineMeasuring(2);
    const PageRules page = m_surface.pageOf(settings);
    EXPECT_EQ(page.paperName, std::nullopt);
    EXPECT_EQ(page.paperSize, settings.paperSize());
    EXPECT_EQ(page.leftMargin, settings.leftMargin());
    EXPECT_EQ(page.rightMargin, settings.rightMargin());
    EXPECT_THAT(m_log.messages(LogLevel::Error),
        ::testing::Contains(
            QStringLiteral("Error getting page from preferences. defaulting to NSPrintInfo values.")));
    EXPECT_EQ(Preferences::paperNameForLineMeasuring(), QStringLiteral("NoSuchPaper"));
}

TEST_F(MeasuringSurfaceTest, TheLinesOfAStyledTextFollowTheCurrentPreferences)
{
    Preferences::setCurrentPaperNamePreference(QStringLiteral("A3"));
    const AttributedString text(longParagraph);
    const quint64 onA3 = QBYExtension::numberOfLines(text);
    Preferences::setCurrentPaperNamePreference(QStringLiteral("A6"));
    const quint64 onA6 = QBYExtension::numberOfLines(text);
    EXPECT_GT(onA6, onA3);
    Preferences::setLeftMarginForPaperSizeLineMeasuring(1);
    EXPECT_GT(QBYExtension::numberOfLines(text), onA6);
}

TEST_F(MeasuringSurfaceTest, TheLayoutUsesTheFontsOfTheText)
{
    TextAttributes large;
    large.font = FontAttributes{.family = QStringLiteral("Helvetica"), .pointSize = 36};
    EXPECT_GT(m_surface.numberOfLines(AttributedString(longParagraph, large), letter),
        m_surface.numberOfLines(AttributedString(longParagraph), letter));
}

TEST_F(MeasuringSurfaceTest, ReportsProgressAfterEveryParagraph)
{
    std::vector<qsizetype> positions;
    m_surface.numberOfLines(AttributedString(QStringLiteral("one\n\r\ntwo")), letter,
        [&](qsizetype position) { positions.push_back(position); });
    EXPECT_THAT(positions, ElementsAre(4, 6, 9));
}
