// SPDX-License-Identifier: MIT
// What of a text in Markdown is prose.
#include "documents/markup/MarkdownReader.h"

#include "tests/harness/QuillbayTest.h"

namespace {

std::string markdownProse(const QByteArray &source)
{
    const Result<AttributedString, DocumentError> text = readMarkdown(source);
    return text ? text.value().string().toStdString() : "(not read)";
}

} // namespace

TEST(MarkdownReader, MarksAreNoText)
{
    EXPECT_EQ(markdownProse("# Title\n\nSome *stressed* and __strong__ `code`.\n"),
        "Title\nSome stressed and strong code.\n");
    EXPECT_EQ(markdownProse("Title\n=====\n\nText\n\n---\n\nMore\n"), "Title\nText\nMore\n");
    EXPECT_EQ(
        markdownProse("* one\n* two\n  1. three\n\n> quoted\n> text\n"), "one\ntwo\nthree\nquoted text\n");
    EXPECT_EQ(markdownProse(R"(A \*star\* and an &amp; &eacute;)"), "A *star* and an & \xC3\xA9\n");
}

TEST(MarkdownReader, ParagraphsAreLinesAndHardBreaksStay)
{
    EXPECT_EQ(markdownProse("one\ntwo\n\n\n\nthree"), "one two\nthree\n");
    EXPECT_EQ(markdownProse("one  \ntwo\\\nthree<br>four"), "one\u2028two\u2028three\u2028four\n");
    EXPECT_EQ(markdownProse("one\r\ntwo\r\n\r\nthree\rfour"), "one two\nthree four\n");
    EXPECT_EQ(markdownProse(""), "");
}

TEST(MarkdownReader, LinksHaveTheirTextAndImagesTheirDescription)
{
    EXPECT_EQ(
        markdownProse(
            "See [the manual](https://example.org/a \"Title\") or [it][id].\n\n[id]: https://example.org\n"),
        "See the manual or it.\n");
    EXPECT_EQ(markdownProse("![A boat](boat.png) sails."), "A boat sails.\n");
}

TEST(MarkdownReader, CodeBlocksCommentsAndTagsAreLeftOut)
{
    EXPECT_EQ(markdownProse("One.\n\n```c\nint x;\n```\n\n    indented code\n\nTwo."), "One.\nTwo.\n");
    EXPECT_EQ(markdownProse("One <!-- not this --> two <b>three</b>.\n\n<!--\nnor\nthis\n-->\n\nFour."),
        "One  two three.\nFour.\n");
    EXPECT_EQ(
        markdownProse("<center>\nA motto\n</center>\n\n<style>p { color: red }</style>\n"), "A motto\n");
    EXPECT_EQ(markdownProse("<script>\nlet x = 1;\n</script>\n\nText"), "Text\n");
}

TEST(MarkdownReader, FrontMatterIsLeftOutIfItEnds)
{
    EXPECT_EQ(markdownProse("---\ntitle: A tale\n---\nText\n"), "Text\n");
    EXPECT_EQ(markdownProse("---\ntitle: A tale\n...\nText\n"), "Text\n");
    EXPECT_EQ(markdownProse("+++\ntitle = 1\n+++\nText\n"), "Text\n");
    EXPECT_EQ(markdownProse("---\nText without an end\n"), "Text without an end\n");
    EXPECT_EQ(markdownProse("+++\ntitle = 1\n---\nText\n"), "+++ title = 1\nText\n"); // a heading
}

TEST(MarkdownReader, FootnotesAreTextWithoutTheirMarks)
{
    EXPECT_EQ(markdownProse("A claim[^1] and another[^note].\n\n[^1]: Said he.\n[^note]: Word.\n"),
        "A claim and another.\nSaid he. Word.\n");
    EXPECT_EQ(markdownProse("Not a note: [^ 1] x[^]"), "Not a note: [^ 1] x[^]\n");
}

TEST(MarkdownReader, EachCellOfATableIsAParagraph)
{
    EXPECT_EQ(markdownProse("| Name | Age |\n|:-----|----:|\n| Ada  | 36  |\n"), "Name\nAge\nAda\n36\n");
    EXPECT_EQ(markdownProse("A | B\n--- | ---\n1 | 2\n"), "A\nB\n1\n2\n");
    EXPECT_EQ(markdownProse("a | b, no table\nc"), "a | b, no table c\n");
}

TEST(MarkdownReader, TheBoxOfATaskIsNoText)
{
    EXPECT_EQ(markdownProse("- [ ] write\n- [x] read\n\n[x] stays\n"), "write\nread\n[x] stays\n");
}

TEST(MarkdownReader, TextsInOtherEncodingsAreDecoded)
{
    EXPECT_EQ(markdownProse("\xEF\xBB\xBF# T\xC3\xA9"), "T\xC3\xA9\n");
    const Result<AttributedString, DocumentError> text = readMarkdown("*\xE9t\xE9*", "iso-8859-1");
    EXPECT_EQ(text.value().string(), QStringLiteral("\u00E9t\u00E9\n"));
}
