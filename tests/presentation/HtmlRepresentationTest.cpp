// SPDX-License-Identifier: MIT
#include "presentation/WordCounterViewController.h"

#include "tests/presentation/CountingPanel.h"

namespace {

const auto title = QStringLiteral("Notes");
const auto documentStart = QStringLiteral("<!DOCTYPE html><html><head><title></title></head><body>");
const auto documentEnd = QStringLiteral("</body></html>");

} // namespace

class HtmlRepresentationTest : public QuillbayTest {
protected:
    /// Only the labels for words and lines are visible.
    static std::unique_ptr<CountingPanel> panelOfTwo()
    {
        preferOnly({Preference::ShowLineCount});
        auto panel = std::make_unique<CountingPanel>();
        panel->controller->updateInterfaceWithPrepopulatedStats({.numberOfWords = 12, .numberOfLines = 3});
        return panel;
    }

    static std::unique_ptr<CountingPanel> panelOfNone()
    {
        auto panel = std::make_unique<CountingPanel>();
        panel->controller->setVisibleTextfieldsForLayout({});
        return panel;
    }

    static QString fragment(const CountingPanel &panel, const std::optional<QString> &under = std::nullopt)
    {
        return panel.controller->htmlRepresentationWithTitle(under, false);
    }
};

TEST_F(HtmlRepresentationTest, TheTitleIsAboveALineForEveryVisibleLabel)
{
    EXPECT_EQ(fragment(*panelOfTwo(), title),
        QStringLiteral("<strong>Notes</strong></br>-Words: 12</br>-Lines: 3"));
}

TEST_F(HtmlRepresentationTest, WithoutATitleTheLabelsStandAlone)
{
    EXPECT_EQ(fragment(*panelOfTwo()), QStringLiteral("-Words: 12</br>-Lines: 3"));
}

TEST_F(HtmlRepresentationTest, AnEmptyTitleIsATitle)
{
    EXPECT_EQ(
        fragment(*panelOfTwo(), QString()), QStringLiteral("<strong></strong></br>-Words: 12</br>-Lines: 3"));
}

TEST_F(HtmlRepresentationTest, WithoutATitleAndVisibleLabelsThereIsNothing)
{
    EXPECT_EQ(fragment(*panelOfNone()), QString());
    EXPECT_EQ(panelOfNone()->controller->htmlRepresentationWithTitle(std::nullopt, true),
        documentStart + documentEnd);
}

TEST_F(HtmlRepresentationTest, ATitleWithoutVisibleLabelsEndsInALineBreak)
{
    EXPECT_EQ(fragment(*panelOfNone(), title), QStringLiteral("<strong>Notes</strong></br>"));
}

TEST_F(HtmlRepresentationTest, TheFullDocumentHasTheFragmentForItsBody)
{
    const auto panel = panelOfTwo();
    EXPECT_EQ(panel->controller->htmlRepresentationWithTitle(title, true),
        documentStart + fragment(*panel, title) + documentEnd);
}

TEST_F(HtmlRepresentationTest, EveryBulletOfALabelBecomesAHyphen)
{
    const auto panel = panelOfTwo();
    panel->labels[0]->setStringValue(QStringLiteral("••a•b•"));
    EXPECT_EQ(fragment(*panel), QStringLiteral("--a-b-</br>-Lines: 3"));
}

TEST_F(HtmlRepresentationTest, BulletsOfTheTitleStay)
{
    EXPECT_EQ(fragment(*panelOfNone(), QStringLiteral("•")), QStringLiteral("<strong>•</strong></br>"));
}

TEST_F(HtmlRepresentationTest, ALabelWithoutTextAddsNoLineBreak)
{
    const auto panel = panelOfTwo();
    panel->labels[0]->setStringValue({});
    EXPECT_EQ(fragment(*panel), QStringLiteral("-Lines: 3"));
}

TEST_F(HtmlRepresentationTest, TheLineBreakBeforeALastLabelWithoutTextStays)
{
    const auto panel = panelOfTwo();
    panel->labels[4]->setStringValue({});
    EXPECT_EQ(fragment(*panel), QStringLiteral("-Words: 12</br>"));
}

TEST_F(HtmlRepresentationTest, NothingIsEscapedAndNoPlaceholderIsFilled)
{
    const auto panel = panelOfTwo();
    panel->labels[0]->setStringValue(QStringLiteral("a<b>&%1%@"));
    EXPECT_EQ(fragment(*panel, QStringLiteral("<i>%1%2%@&")),
        QStringLiteral("<strong><i>%1%2%@&</strong></br>a<b>&%1%@</br>-Lines: 3"));
}

TEST_F(HtmlRepresentationTest, AllEightLabelsFollowInTheirOrder)
{
    preferOnly(everyStatistic);
    const CountingPanel panel;
    panel.controller->updateInterfaceWithPrepopulatedStats({1, 2, 3, 4, 5, 6, 7, 8});
    EXPECT_EQ(fragment(panel),
        QStringLiteral(
            "-Words: 1</br>-Characters: 2</br>-Chars (+Whitespace): 3</br>-Sentences: 4</br>"
            "-Lines: 5</br>-Lines (Hard Break): 6</br>-Paragraphs: 7</br>-Indented Paragraphs: 8"));
}

TEST_F(HtmlRepresentationTest, AsStyledTextItHasALineForEveryLabelAndABoldTitle)
{
    const auto styled =
        panelOfTwo()->controller->attributedStringRepresentationWithTitle(QStringLiteral("Größe 😀"));
    ASSERT_TRUE(styled);
    EXPECT_EQ(styled->string(), QStringLiteral("Größe 😀\n-Words: 12\n-Lines: 3"));
    ASSERT_TRUE(styled->attributesAt(0).font);
    EXPECT_EQ(styled->attributesAt(0).font->weight, 700);
    EXPECT_EQ(styled->attributesAt(styled->length() - 1).font->weight, 400);
}

TEST_F(HtmlRepresentationTest, WithoutLabelsTheStyledTextIsEmpty)
{
    const auto styled = panelOfNone()->controller->attributedStringRepresentationWithTitle(std::nullopt);
    ASSERT_TRUE(styled);
    EXPECT_TRUE(styled->isEmpty());
}

TEST_F(HtmlRepresentationTest, AnUnpairedSurrogateHasNoStyledText)
{
    EXPECT_FALSE(panelOfTwo()->controller->attributedStringRepresentationWithTitle(QString(QChar(0xD83D))));
}

TEST_F(HtmlRepresentationTest, HtmlThatTheReaderRejectsHasNoStyledText)
{
    const QString deep = QStringLiteral("<div>").repeated(2000);
    EXPECT_FALSE(panelOfTwo()->controller->attributedStringRepresentationWithTitle(deep));
}
