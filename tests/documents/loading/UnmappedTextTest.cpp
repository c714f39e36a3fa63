// SPDX-License-Identifier: MIT
#include "documents/loading/PdfText.h"

#include <gtest/gtest.h>

#include <QString>

TEST(UnmappedText, IsTextOfControlCharactersAndUnassignedCodePoints)
{
    EXPECT_TRUE(isUnmapped(u"\u0001\u0002\u0003 \u0004\u0005"));
    EXPECT_TRUE(isUnmapped(u"*XLGH\u0003IRU\u0003'HELDQ\u00030DLQWDLQHUV"));
    EXPECT_TRUE(isUnmapped(u"\u0378\u0379\u0380 ab"));
    EXPECT_TRUE(isUnmapped(u"\U0001FFFE\uFFFF"));
}

TEST(UnmappedText, IsNoTextOfAnyScript)
{
    EXPECT_FALSE(isUnmapped({}));
    EXPECT_FALSE(isUnmapped(u" \t\r\n\f"));
    EXPECT_FALSE(isUnmapped(u"One line,\tand\r\nanother\u00AD.\f"));
    EXPECT_FALSE(isUnmapped(u"\u0639\u0631\u0628\u064A \u05E2\u05D1\u05E8 \u96E8 \U0001F41F \U00020000"));
}

TEST(UnmappedText, IsNoTextWithAFewGlyphsOfAFormula)
{
    const QString words = QStringLiteral("words ").repeated(8); // 40 characters
    EXPECT_FALSE(isUnmapped(words + QStringLiteral("\u0001\u0011")));
    EXPECT_TRUE(isUnmapped(words + QStringLiteral("\u0001\u0011\u0012")));
}
