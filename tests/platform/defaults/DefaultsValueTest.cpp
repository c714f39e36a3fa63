// SPDX-License-Identifier: MIT
#include "platform/defaults/DefaultsValue.h"

#include "tests/harness/QuillbayTest.h"

#include <QLocale>

#include <limits>

namespace {

DefaultsValue text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

constexpr double largest = std::numeric_limits<double>::max();
constexpr qint64 mostNegative = std::numeric_limits<qint64>::min();
constexpr qint64 mostPositive = std::numeric_limits<qint64>::max();

} // namespace

TEST(DefaultsValue, NumbersReadAsTrueUnlessTheyAreZero)
{
    EXPECT_TRUE(boolValue(true));
    EXPECT_FALSE(boolValue(false));
    EXPECT_TRUE(boolValue(qint64(-1)));
    EXPECT_FALSE(boolValue(qint64(0)));
    EXPECT_TRUE(boolValue(0.25));
    EXPECT_FALSE(boolValue(-0.0));
}

TEST(DefaultsValue, TextReadsAsTrueByItsFirstLetterOrItsFirstDigitThatIsNotZero)
{
    for (const char *yes :
        {"YES", "yes", "Y", "true", "TRUE", "t", "1", "9", "001", "-1", "+2", " \t\n1", " Yes", "1no"})
        EXPECT_TRUE(boolValue(text(yes))) << yes;
    for (const char *no :
        {"", " ", "NO", "no", "false", "0", "000", "-0", "0.5", "on", "x1", "--1", "-", "- 1"})
        EXPECT_FALSE(boolValue(text(no))) << no;
}

TEST(DefaultsValue, NumbersReadAsIntegersWithoutTheirFraction)
{
    EXPECT_EQ(integerValue(true), 1);
    EXPECT_EQ(integerValue(qint64(-7)), -7);
    EXPECT_EQ(integerValue(2.9), 2);
    EXPECT_EQ(integerValue(-2.9), -2);
}

TEST(DefaultsValue, DoublesBeyondTheRangeOfIntegersReadAsTheNearestBound)
{
    EXPECT_EQ(integerValue(9223372036854775808.0), mostPositive);
    EXPECT_EQ(integerValue(largest), mostPositive);
    EXPECT_EQ(integerValue(-9223372036854775808.0), mostNegative);
    EXPECT_EQ(integerValue(-largest), mostNegative);
    EXPECT_EQ(integerValue(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(DefaultsValue, TextReadsAsItsLeadingInteger)
{
    EXPECT_EQ(integerValue(text("42")), 42);
    EXPECT_EQ(integerValue(text(" \n-3 sentences")), -3);
    EXPECT_EQ(integerValue(text("+5")), 5);
    EXPECT_EQ(integerValue(text("3.9")), 3);
    EXPECT_EQ(integerValue(text("1e3")), 1);
    for (const char *none : {"", "abc", "-", "+-1", "- 1", ".5"})
        EXPECT_EQ(integerValue(text(none)), 0) << none;
    EXPECT_EQ(integerValue(text("9223372036854775807")), mostPositive);
    EXPECT_EQ(integerValue(text("99999999999999999999")), mostPositive);
    EXPECT_EQ(integerValue(text("-99999999999999999999")), mostNegative);
}

TEST(DefaultsValue, TextReadsAsItsLeadingDecimalNumber)
{
    EXPECT_EQ(doubleValue(text("0.5")), 0.5);
    EXPECT_EQ(doubleValue(text(" \t-1.25 in")), -1.25);
    EXPECT_EQ(doubleValue(text("+.5")), 0.5);
    EXPECT_EQ(doubleValue(text("3.")), 3);
    EXPECT_EQ(doubleValue(text("1e2")), 100);
    EXPECT_EQ(doubleValue(text("1E-2x")), 0.01);
    EXPECT_EQ(doubleValue(text("2e")), 2);
    EXPECT_EQ(doubleValue(text("2e+")), 2);
    EXPECT_EQ(doubleValue(text("1.5.5")), 1.5);
    EXPECT_EQ(doubleValue(text("0x10")), 0);
    for (const char *none : {"", "abc", ".", "-", "-.e5", "inf", "nan", "NaN", "infinity"})
        EXPECT_EQ(doubleValue(text(none)), 0) << none;
}

TEST(DefaultsValue, TextBeyondTheRangeOfDoublesStaysFinite)
{
    EXPECT_EQ(doubleValue(text("1e999")), largest);
    EXPECT_EQ(doubleValue(text("-1e999")), -largest);
    EXPECT_EQ(doubleValue(text("1e-999")), 0);
}

TEST(DefaultsValue, OtherNumbersReadAsDoubles)
{
    EXPECT_EQ(doubleValue(true), 1);
    EXPECT_EQ(doubleValue(false), 0);
    EXPECT_EQ(doubleValue(qint64(-12)), -12);
}

using DefaultsValueInTheUsersLocale = QuillbayTest;

TEST_F(DefaultsValueInTheUsersLocale, TheDecimalPointDoesNotFollowTheLocale)
{
    setLocale("de_DE.UTF-8"); // not installed everywhere, unlike Qt's own locales
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(doubleValue(text("0.5")), 0.5);
    EXPECT_EQ(doubleValue(text("0,5")), 0);
    QLocale::setDefault(before);
}
