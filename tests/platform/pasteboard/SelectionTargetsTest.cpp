// SPDX-License-Identifier: MIT
#include "platform/pasteboard/SelectionTargets.h"

#include <gmock/gmock.h>

using SelectionTargets::makeForm;
using SelectionTargets::targetsToRequest;
using ::testing::ElementsAre;

namespace {

QByteArrayList styled(const QByteArrayList &offered)
{
    return targetsToRequest(SelectionContent::Text, offered).value(0);
}

QByteArrayList plain(const QByteArrayList &offered)
{
    return targetsToRequest(SelectionContent::Text, offered).value(1);
}

} // namespace

TEST(SelectionTargets, TheRichestStyledTextComesFirst)
{
    EXPECT_THAT(styled({"TARGETS", "STRING", "text/html", "application/rtf", "image/png", "text/rtf",
                    "application/x-flat-rtfd", "text/richtext"}),
        ElementsAre("application/x-flat-rtfd", "text/rtf", "application/rtf", "text/richtext", "text/html"));
    EXPECT_THAT(styled({"text/plain", "UTF8_STRING"}), ElementsAre());
}

TEST(SelectionTargets, ThePlainTextWithTheSafestEncodingComesFirst)
{
    EXPECT_THAT(plain({"STRING", "TEXT", "text/plain", "text/plain;charset=utf-16", "COMPOUND_TEXT",
                    "text/plain;charset=utf-8", "UTF8_STRING"}),
        ElementsAre("UTF8_STRING", "text/plain;charset=utf-8", "text/plain;charset=utf-16", "text/plain",
            "TEXT", "STRING"));
}

TEST(SelectionTargets, MimeTypesMatchWithAnyCaseBlanksAndQuotes)
{
    EXPECT_THAT(styled({"text/html", "Text/HTML; charset=\"UTF-8\""}),
        ElementsAre("Text/HTML; charset=\"UTF-8\"", "text/html"));
    EXPECT_THAT(plain({"text/PLAIN;charset=UTF-8", "utf8_string"}), ElementsAre("text/PLAIN;charset=UTF-8"));
}

TEST(SelectionTargets, AnOwnerThatDoesNotListItsTargetsIsAskedForCommonTexts)
{
    EXPECT_THAT(targetsToRequest(SelectionContent::Text, std::nullopt),
        ElementsAre(ElementsAre("UTF8_STRING", "STRING")));
}

TEST(SelectionTargets, OnlyOneListOfFilesIsRequested)
{
    EXPECT_THAT(targetsToRequest(SelectionContent::Files,
                    QByteArrayList{"x-special/gnome-copied-files", "UTF8_STRING", "text/uri-list"}),
        ElementsAre(ElementsAre("text/uri-list", "x-special/gnome-copied-files")));
}

TEST(SelectionTargets, NamesOfX11BecomeMimeTypes)
{
    EXPECT_EQ(makeForm("UTF8_STRING", "UTF8_STRING", "a")->type, QStringLiteral("text/plain;charset=utf-8"));
    EXPECT_EQ(makeForm("STRING", "STRING", "a")->type, QStringLiteral("text/plain;charset=iso-8859-1"));
    EXPECT_EQ(makeForm("TEXT", "UTF8_STRING", "a")->type, QStringLiteral("text/plain;charset=utf-8"));
    EXPECT_EQ(makeForm("TEXT", "STRING", "a")->type, QStringLiteral("text/plain;charset=iso-8859-1"));
    EXPECT_EQ(makeForm("text/html;charset=x", "text/html", "a")->type, QStringLiteral("text/html;charset=x"));
}

TEST(SelectionTargets, ACompoundTextInLatin1IsAccepted)
{
    EXPECT_EQ(
        makeForm("TEXT", "COMPOUND_TEXT", "caf\xe9")->type, QStringLiteral("text/plain;charset=iso-8859-1"));
    EXPECT_FALSE(makeForm("TEXT", "COMPOUND_TEXT", "\x1b%G\xc3\xa9\x1b%@"));
}

TEST(SelectionTargets, ATrailingNulIsNotPartOfTheText)
{
    EXPECT_EQ(makeForm("STRING", "STRING", QByteArray("a\0b\0\0", 5))->bytes, QByteArray("a\0b", 3));
    EXPECT_EQ(makeForm("text/plain;charset=utf-16", "", QByteArray("a\0", 2))->bytes, QByteArray("a\0", 2));
}
