// SPDX-License-Identifier: MIT
#include "platform/locale/NumberText.h"

#include "tests/harness/QuillbayTest.h"

namespace {

QString spelled(quint64 number, const char *locale)
{
    return SpelledOutNumber(QString::fromLatin1(locale)).text(number).value_or(QStringLiteral("nothing"));
}

} // namespace

TEST(SpelledOutNumber, IsInTheWordsOfTheLocale)
{
    EXPECT_EQ(spelled(250, "en_US"), QStringLiteral("two hundred fifty"));
    EXPECT_EQ(spelled(251, "en_US"), QStringLiteral("two hundred fifty-one"));
    EXPECT_EQ(spelled(1, "fr_FR"), QStringLiteral("un"));
    EXPECT_EQ(spelled(80, "fr_CH"), QStringLiteral("huitante"));
    EXPECT_EQ(spelled(21, "de_DE"), QStringLiteral("ein\u00ADund\u00ADzwanzig"));
    EXPECT_EQ(spelled(3, "ja_JP"), QStringLiteral("三"));
}

TEST(SpelledOutNumber, AnUnknownLocaleGivesEnglish)
{
    EXPECT_EQ(spelled(12, "en_US_POSIX"), QStringLiteral("twelve"));
}

TEST(SpelledOutNumber, LargeNumbersAreSpelledUpToTheLimit)
{
    EXPECT_EQ(spelled(1'000'000, "en_US"), QStringLiteral("one million"));
    EXPECT_TRUE(SpelledOutNumber(QStringLiteral("en_US")).text(INT64_MAX));
    EXPECT_FALSE(SpelledOutNumber(QStringLiteral("en_US")).text(static_cast<quint64>(INT64_MAX) + 1));
}
