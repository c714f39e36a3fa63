// SPDX-License-Identifier: MIT
#include "writing_progress/ProgressText.h"

#include "tests/harness/QuillbayTest.h"

#include <QLocale>

class ProgressTextTest : public QuillbayTest {
protected:
    ProgressTextTest() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~ProgressTextTest() override { QLocale::setDefault(QLocale::system()); }

    static DayTotal today(quint64 before, quint64 now)
    {
        return {.day = QDate(2026, 11, 22),
            .before = {.numberOfWords = before},
            .counts = {.numberOfWords = now},
            .added = {}};
    }
    static QString text(const Goal &goal, const DayTotal &day)
    {
        return progressText(goal, progressOf(goal, day));
    }
};

TEST_F(ProgressTextTest, AGoalIsASentence)
{
    EXPECT_EQ(goalText({.amount = 1}), QStringLiteral("1 word"));
    EXPECT_EQ(goalText({.amount = 500, .span = Goal::Span::Day}), QStringLiteral("500 words a day"));
    EXPECT_EQ(goalText({.amount = 50'000, .deadline = QDate(2026, 11, 30)}),
        QStringLiteral("50,000 words until 11/30/26"));
    EXPECT_EQ(limitText({.statistic = Statistic::CharactersIncludingWhitespace, .amount = 5000}),
        QStringLiteral("At most 5,000 characters with white space"));
}

TEST_F(ProgressTextTest, ProgressSaysWhatRemains)
{
    const Goal book{.amount = 50'000, .deadline = QDate(2026, 11, 30)};
    EXPECT_EQ(text(book, today(42'692, 42'700)),
        QStringLiteral("7,300 words remaining: 812 words a day until 11/30/26"));
    EXPECT_EQ(text(book, today(42'692, 50'000)), QStringLiteral("Reached"));
    EXPECT_EQ(text({.amount = 100, .deadline = QDate(2026, 11, 20)}, today(0, 40)),
        QStringLiteral("60 words remaining: it was due on 11/20/26"));
    EXPECT_EQ(text({.amount = 100, .span = Goal::Span::Day}, today(10, 50)),
        QStringLiteral("60 words remaining today"));
}

TEST_F(ProgressTextTest, AChangeHasItsSign)
{
    EXPECT_EQ(changeText(1812), QStringLiteral("+1,812"));
    EXPECT_EQ(changeText(-3), QStringLiteral("\u22123"));
    EXPECT_EQ(changeText(0), QStringLiteral("0"));
}
