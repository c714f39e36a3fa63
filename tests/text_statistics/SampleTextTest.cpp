// SPDX-License-Identifier: MIT
#include "text_statistics/SampleText.h"

#include "tests/harness/QuillbayTest.h"

#include <QStringList>

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
