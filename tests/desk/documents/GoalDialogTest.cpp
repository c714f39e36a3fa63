// SPDX-License-Identifier: MIT
#include "desk/documents/GoalDialog.h"

#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QGroupBox>
#include <QRadioButton>

class GoalDialogTest : public QuillbayTest {
protected:
    GoalDialogTest() { TestDisplay::start(); }

    static Plan shown(const Plan &plan) { return GoalDialog(QStringLiteral("a.txt"), plan, nullptr).plan(); }
};

TEST_F(GoalDialogTest, ReturnsThePlanThatItShows)
{
    const Plan book{
        .goal = Goal{.statistic = Statistic::Lines, .amount = 90'000, .deadline = QDate(2026, 11, 30)},
        .limit = Limit{.statistic = Statistic::CharactersIncludingWhitespace, .amount = 5000}};
    const Plan daily{.goal = Goal{.amount = 500, .span = Goal::Span::Day, .countsAddedOnly = true}};
    EXPECT_EQ(shown(book), book);
    EXPECT_EQ(shown(daily), daily);
    EXPECT_EQ(shown({}), Plan());
}

TEST_F(GoalDialogTest, ADayHasNoDeadlineAndATotalCountsNothingAddedOnly)
{
    GoalDialog dialog(
        QStringLiteral("a.txt"), {.goal = Goal{.amount = 500, .deadline = QDate(2026, 11, 30)}}, nullptr);
    dialog.findChild<QRadioButton *>(QStringLiteral("dayRadioButton"))->click();
    EXPECT_FALSE(dialog.findChild<QDateEdit *>(QStringLiteral("deadlineEdit"))->isEnabled());
    EXPECT_FALSE(dialog.plan().goal->deadline);
    dialog.findChild<QCheckBox *>(QStringLiteral("addedCheckBox"))->click();
    EXPECT_TRUE(dialog.plan().goal->countsAddedOnly);
    dialog.findChild<QRadioButton *>(QStringLiteral("totalRadioButton"))->click();
    EXPECT_FALSE(dialog.plan().goal->countsAddedOnly);
    EXPECT_EQ(dialog.plan().goal->deadline, QDate(2026, 11, 30));
}
