// SPDX-License-Identifier: MIT
#include "command/FileNames.h"

#include <gmock/gmock.h>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(FileNames, AListWithANulByteIsSeparatedByNulBytesOnly)
{
    EXPECT_THAT(namesInList("a\nb\n"), ElementsAre("a", "b"));
    EXPECT_THAT(namesInList("a\nb"), ElementsAre("a", "b"));
    EXPECT_THAT(namesInList(QByteArray("a\nb\0c\0", 6)), ElementsAre("a\nb", "c"));
    EXPECT_THAT(namesInList("\n\n"), IsEmpty());
    EXPECT_THAT(namesInList(""), IsEmpty());
}

TEST(FileNames, PrintableNamesHoldNoControlCharacters)
{
    EXPECT_EQ(printableName("caf\xC3\xA9 \xF0\x9F\x98\x80"), QByteArray("caf\xC3\xA9 \xF0\x9F\x98\x80"));
    EXPECT_EQ(printableName("a\x1B[1m\x7F\n\xC2\x9B"), QByteArray("a\\x1b[1m\\x7f\\x0a\\x9b"));
    EXPECT_EQ(printableName("\xFF"), QByteArray("\xEF\xBF\xBD"));
}

TEST(FileNames, JsonNamesAreStringsOfJson)
{
    EXPECT_EQ(jsonName("a\"b\\c\n\x01"), QByteArray("\"a\\\"b\\\\c\\n\\u0001\""));
    EXPECT_EQ(jsonName("\xFF"), QByteArray("\"\xEF\xBF\xBD\""));
}

TEST(FileNames, TsvNamesEscapeSeparatorsAndTheEscape)
{
    EXPECT_EQ(tsvName("a\tb\nc\rd\\t"), QByteArray("a\\tb\\nc\\rd\\\\t"));
}
