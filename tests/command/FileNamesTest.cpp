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

TEST(FileNames, PrintableNamesContainNoControlCharacters)
{
    EXPECT_EQ(printableName("caf\xC3\xA9 \xF0\x9F\x98\x80"), QByteArray("caf\xC3\xA9 \xF0\x9F\x98\x80"));
    EXPECT_EQ(printableName("a\x1B[1m\x7F\n\xC2\x9B"), QByteArray("a\\x1b[1m\\x7f\\x0a\\x9b"));
    EXPECT_EQ(printableName("\xE2\x80\xAE\xE2\x80\xA9"), QByteArray("\\u202e\\u2029"));
    EXPECT_EQ(printableName("\xFF"), QByteArray("\xEF\xBF\xBD"));
}

TEST(FileNames, JsonNamesAreJsonStrings)
{
    EXPECT_EQ(jsonName("a\"b\\c\n\x01"), QByteArray("\"a\\\"b\\\\c\\n\\u0001\""));
    EXPECT_EQ(jsonName("\xFF"), QByteArray("\"\xEF\xBF\xBD\""));
    EXPECT_EQ(
        jsonName("\x7F\xC2\x9B\xE2\x80\xAE\xE2\x80\xA8"), QByteArray("\"\\u007f\\u009b\\u202e\\u2028\""));
}

TEST(FileNames, JsonNamesAFileByItsBytesToo)
{
    EXPECT_EQ(jsonFileMembers("caf\xC3\xA9"), QByteArray("\"file\":\"caf\xC3\xA9\""));
    EXPECT_EQ(jsonFileMembers("/a\xFF\"b\\\n"),
        QByteArray("\"file\":\"/a\xEF\xBF\xBD\\\"b\\\\\\n\",\"url\":\"file:///a%FF%22b%5C%0A\""));
    EXPECT_NE(jsonFileMembers("\xFE"), jsonFileMembers("\xFF"));
}

TEST(FileNames, TsvNamesEscapeSeparatorsAndTheEscape)
{
    EXPECT_EQ(tsvName("a\tb\nc\rd\\t"), QByteArray("a\\tb\\nc\\rd\\\\t"));
}

TEST(FileNames, TsvNamesEscapeEveryByteThatControlsATerminal)
{
    EXPECT_EQ(tsvName("\x1B[2J\x07\x7F"), QByteArray("\\x1b[2J\\x07\\x7f"));
    EXPECT_EQ(
        tsvName("\xC2\x9B\xE2\x80\xAE\xE2\x80\xA8"), QByteArray("\\xc2\\x9b\\xe2\\x80\\xae\\xe2\\x80\\xa8"));
    EXPECT_EQ(tsvName("\xFF\x9B\xC3"), QByteArray("\\xff\\x9b\\xc3"));
    EXPECT_EQ(tsvName("caf\xC3\xA9 \xF0\x9F\x98\x80"), QByteArray("caf\xC3\xA9 \xF0\x9F\x98\x80"));
}

TEST(FileNames, TsvNamesAreReversible)
{
    QByteArray name;
    for (int byte = 1; byte < 0x100; ++byte)
        name.append(static_cast<char>(byte)).append("\xC2\x9B\xE2\x82\xAC");
    QByteArray back;
    const QByteArray tsv = tsvName(name);
    for (qsizetype at = 0; at < tsv.size(); ++at) {
        if (tsv[at] != '\\') {
            back += tsv[at];
        } else if (tsv[++at] == 'x') {
            back += static_cast<char>(tsv.mid(at + 1, 2).toUInt(nullptr, 16));
            at += 2;
        } else {
            const qsizetype place = QByteArrayView("tnr").indexOf(tsv[at]);
            back += place < 0 ? tsv[at] : "\t\n\r"[place];
        }
    }
    EXPECT_EQ(back, name);
}

TEST(FileNames, OperandsMayBeUrlsOfFiles)
{
    EXPECT_EQ(
        namesOfOperands({"file:///tmp/it's%20%22new%0Aline%22%25%E9.txt", "plain.txt", "file:name", "-"}),
        (QByteArrayList{"/tmp/it's \"new\nline\"%\xE9.txt", "plain.txt", "file:name", "-"}));
}
