// SPDX-License-Identifier: MIT
#include "platform/locale/NumberText.h"

#include "tests/harness/QuillbayTest.h"

class DecimalTextTest : public QuillbayTest { };

TEST_F(DecimalTextTest, RoundsToTheNearestValueAndTiesToTheEvenDigit)
{
    EXPECT_EQ(decimalText(8.2677, 3), QStringLiteral("8.268"));
    EXPECT_EQ(decimalText(0.0625, 3), QStringLiteral("0.062"));
    EXPECT_EQ(decimalText(0.1875, 3), QStringLiteral("0.188"));
    EXPECT_EQ(decimalText(2.5, 0), QStringLiteral("2"));
    EXPECT_EQ(decimalText(3.5, 0), QStringLiteral("4"));
}

TEST_F(DecimalTextTest, HasNoTrailingZerosAndNoGrouping)
{
    EXPECT_EQ(decimalText(11.0, 3), QStringLiteral("11"));
    EXPECT_EQ(decimalText(8.50, 3), QStringLiteral("8.5"));
    EXPECT_EQ(decimalText(1234567.5, 3), QStringLiteral("1234567.5"));
}

TEST_F(DecimalTextTest, IsTheSameInEveryLocale)
{
    setLocale("de_DE.UTF-8");
    EXPECT_EQ(decimalText(1234.5, 3), QStringLiteral("1234.5"));
    setLocale("ar_EG.UTF-8");
    EXPECT_EQ(decimalText(1234.5, 3), QStringLiteral("1234.5"));
}
