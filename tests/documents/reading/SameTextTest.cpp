// SPDX-License-Identifier: MIT
// The same content in every format that has tables and lists has the same text.
#include "documents/html/HtmlReader.h"
#include "documents/reading/DocumentReader.h"
#include "documents/rtf/RtfReader.h"

#include "tests/documents/docx/PackageWriter.h"
#include "tests/harness/QuillbayTest.h"

namespace {

QByteArray wordParagraph(const QByteArray &text)
{
    return "<w:p><w:r><w:t>" + text + "</w:t></w:r></w:p>";
}

QByteArray wordCell(const QByteArray &content)
{
    return "<w:tc>" + content + "</w:tc>";
}

QByteArray wordTable(std::initializer_list<QByteArray> rows)
{
    QByteArray table = "<w:tbl>";
    for (const QByteArray &row : rows)
        table += "<w:tr>" + row + "</w:tr>";
    return table + "</w:tbl>";
}

struct SameContent {
    QByteArray rtf; ///< what is in the document's group
    QByteArray wordBody;
    QByteArray htmlBody;
    QString text; ///< without the end of the last line, which web pages have none of
};

void expectSameTexts(const SameContent &content)
{
    EXPECT_EQ(readRtf("{\\rtf1 " + content.rtf + "}").value().string(), content.text + u'\n');
    EXPECT_EQ(readDocument(DocumentKind::WordDocument, WordPackage{.body = content.wordBody}.bytes())
                  .value()
                  .string(),
        content.text + u'\n');
    EXPECT_EQ(readHtml(content.htmlBody).value().string(), content.text);
}

} // namespace

TEST(SameText, OfATable)
{
    expectSameTexts({
        .rtf = R"(before\par\trowd\cellx1\cellx2\intbl One two.\cell three\cell\row)"
               R"(\trowd\cellx1\cellx2 four\cell five\cell\row\pard after\par)",
        .wordBody = wordParagraph("before")
            + wordTable({wordCell(wordParagraph("One two.")) + wordCell(wordParagraph("three")),
                wordCell(wordParagraph("four")) + wordCell(wordParagraph("five"))})
            + wordParagraph("after"),
        .htmlBody = "<div>before</div><table><tr><td>One two.</td><td>three</td></tr>"
                    "<tr><td>four</td><td>five</td></tr></table><div>after</div>",
        .text = QStringLiteral("before\nOne two.\nthree\nfour\nfive\nafter"),
    });
}

TEST(SameText, OfATableWithEmptyCellsAndWithParagraphsInACell)
{
    expectSameTexts({
        .rtf = R"(\trowd\cellx1\cellx2\intbl\cell a\par b\cell\row)"
               R"(\trowd\cellx1\cellx2 c\cell\cell\row\pard after\par)",
        .wordBody = wordTable({wordCell("<w:p/>") + wordCell(wordParagraph("a") + wordParagraph("b")),
                        wordCell(wordParagraph("c")) + wordCell("<w:p/>")})
            + wordParagraph("after"),
        .htmlBody = "<table><tr><td></td><td><div>a</div><div>b</div></td></tr>"
                    "<tr><td>c</td><td></td></tr></table><div>after</div>",
        .text = QStringLiteral("\na\nb\nc\n\nafter"),
    });
}

TEST(SameText, OfATableInACell)
{
    expectSameTexts({
        .rtf = R"(\trowd\cellx1\cellx2\intbl a\par\itap2 b\nestcell c\nestcell)"
               R"({\*\nesttableprops\trowd\cellx1\cellx2\nestrow}{\nonesttables\par}\itap1\cell d\cell\row)"
               R"(\pard after\par)",
        .wordBody = wordTable({wordCell(wordParagraph("a")
                                   + wordTable({wordCell(wordParagraph("b")) + wordCell(wordParagraph("c"))})
                                   + "<w:p/>")
                        + wordCell(wordParagraph("d"))})
            + wordParagraph("after"),
        .htmlBody = "<table><tr><td>a<table><tr><td>b</td><td>c</td></tr></table></td><td>d</td></tr></table>"
                    "<div>after</div>",
        .text = QStringLiteral("a\nb\nc\n\nd\nafter"),
    });
}

TEST(SameText, OfAList)
{
    expectSameTexts({
        .rtf = R"({\listtext\pard\plain 1.\tab}\ls1 one item\par{\listtext 2.\tab}another\par)",
        .wordBody = "<w:p><w:pPr><w:numPr><w:ilvl w:val='0'/><w:numId w:val='1'/></w:numPr></w:pPr>"
                    "<w:r><w:t>one item</w:t></w:r></w:p>"
            + wordParagraph("another"),
        .htmlBody = "<ol><li>one item<li>another</ol>",
        .text = QStringLiteral("one item\nanother"),
    });
}

TEST(SameText, OfAFormula)
{
    const auto wordRun = [](const QByteArray &text) { return "<m:r><m:t>" + text + "</m:t></m:r>"; };
    const auto wordElement = [&](const QByteArray &text) { return "<m:e>" + wordRun(text) + "</m:e>"; };
    expectSameTexts({
        .rtf = R"(let {\mmath{\*\moMath{\mr x=}{\mf{\mfPr{\mtype bar}}{\mnum{\mr 3}}{\mden{\mr 4}}})"
               R"({\mm{\mmr{\me{\mr a}}{\me{\mr b}}}{\mmr{\me{\mr c}}{\me{\mr d}}}}}} be\par)",
        .wordBody = "<w:p><w:r><w:t xml:space='preserve'>let </w:t></w:r><m:oMath>" + wordRun("x=")
            + "<m:f><m:num>" + wordRun("3") + "</m:num><m:den>" + wordRun("4") + "</m:den></m:f><m:m><m:mr>"
            + wordElement("a") + wordElement("b") + "</m:mr><m:mr>" + wordElement("c") + wordElement("d")
            + "</m:mr></m:m></m:oMath><w:r><w:t xml:space='preserve'> be</w:t></w:r></w:p>",
        .htmlBody =
            "let <math><mi>x</mi><mo>=</mo><mfrac><mn>3</mn><mn>4</mn></mfrac><mtable><mtr><mtd>a</mtd>"
            "<mtd>b</mtd></mtr><mtr><mtd>c</mtd><mtd>d</mtd></mtr></mtable></math> be",
        .text = QStringLiteral("let x= 3 4 a b c d be"),
    });
}
