// SPDX-License-Identifier: MIT
// The text of tables, which differs from that of the HTML standard, and of formulas.
#include "tests/documents/html/PageText.h"

TEST(TableText, EveryCellEndsAParagraph)
{
    expectTexts({
        {"<table><tr><td>a<td>b</table>", u"a\nb"},
        {"<table><tr><td>a</td> <td>b</td></tr> <tr><th>c</th><td>d</td></tr></table>", u"a\nb\nc\nd"},
        {"a<table><td>b</table>c", u"a\nb\nc"},
        {"<table><td> a <td> b </table>", u"a\nb"},
        {"<table><td>a<br>b<td>c</table>", u"a\nb\nc"},
        {"<table><td>a</table><p>b", u"a\n\nb"},
    });
}

TEST(TableText, AnEmptyCellIsAnEmptyParagraph)
{
    expectTexts({
        {"<table><tr><td>a<td><td></table>", u"a\n\n"},
        {"<table><tr><td>a<td><td></table>b", u"a\n\n\nb"},
        {"<table><tr><td><tr><td>a</table>", u"\na"},
        {"<p>a</p><table><td><td>b</table>", u"a\n\n\nb"},
        {"<table><td></table>", u""},
        {"<table><td>a<td><br><td>b</table>", u"a\n\nb"},
        {"<table><td>a<td>&nbsp;<td>b</table>", u"a\n\u00A0\nb"},
    });
}

TEST(TableText, ARowWithoutCellsIsIgnored)
{
    expectTexts({{"<table><tr><td>a<tr><tr><td>b</table>", u"a\nb"}});
}

TEST(TableText, BlocksAtTheEdgesOfACellAddNoLineEnds)
{
    expectTexts({
        {"<table><td><p>a<td>b</table>", u"a\nb"},
        {"<table><td><p>a</p>\n</td><td><p><br/>\n</p></td><td><p>b</table>", u"a\n\nb"},
        {"<table><td><p>a<p>b<td><div>c</div></table>", u"a\n\nb\nc"},
        {"<table><td>a<br><td><pre>b\n</pre><td>c</table>", u"a\nb\nc"},
        {"<p>a</p><table><td><p>b</table>", u"a\n\nb"},
    });
}

TEST(TableText, ATableInACellHasParagraphsOfItsOwn)
{
    expectTexts({
        {"<table><td>a<table><td>b<td>c</table>x<td>d</table>", u"a\nb\nc\nx\nd"},
        {"<table><td><div>a</div><table><td>b</table><p>x<td>d</table>", u"a\nb\n\nx\nd"},
    });
}

TEST(TableText, ATableThatEndsItsCellIsFollowedByAnEmptyParagraph)
{
    expectTexts({
        {"<table><td>a<table><td>b<td>c</table><td>d</table>", u"a\nb\nc\n\nd"},
        {"<table><td><table><td>b</table> </td><td>d</table>", u"b\n\nd"},
        {"<table><td>a<table><td>b<td></table><td>d</table>", u"a\nb\n\n\nd"},
    });
}

TEST(TableText, RowsAreReadAcrossTheGroupsOfATable)
{
    expectTexts({
        {"<table><thead><tr><td>a<tbody><tr><td>b<tr><td>c<tfoot><tr><td>d</table>", u"a\nb\nc\nd"},
        {"<table><tfoot><tr><td>a<tbody><tr><td>b</table>", u"a\nb"},
        {"<table><tr><td>a</table><table><tr><td>b</table>", u"a\nb"},
    });
}

TEST(TableText, ACaptionIsOnALineOfItsOwn)
{
    expectTexts({
        {"<table><caption>a</caption><tr><td>b</table>", u"a\nb"},
        {"<table><tr><td>a<caption>b</caption></table>", u"a\nb"},
    });
}

TEST(TableText, HiddenCellsAndRowsEndNothing)
{
    expectTexts({
        {"<table><tr><td>a<td hidden>b</table>c", u"a\nc"},
        {"<table><tr><td>a<td style='visibility:hidden'>b<td>c</table>", u"a\nc"},
        {"<table><tr><td>a<tr hidden><td>b<tr><td>c</table>", u"a\nc"},
        {"<table><colgroup><col></colgroup><tr><td>a</table>", u"a"},
    });
}

TEST(TableText, WhiteSpaceBetweenCellsIsIgnored)
{
    expectTexts({{"<table style='white-space:pre'> <tr> <td>a</td> <td>b</td> </tr> </table>", u"a\nb"}});
}

TEST(TableText, TablesCanBeMadeOfAnyElement)
{
    expectTexts({
        {"<div style='display:table'><p style='display:contents'><b style='display:table-cell'>a</b> "
         "<b style='display:table-cell'>b</b></p></div>",
            u"a\nb"},
        {"<div style='display:table'><div style='display:table-row-group'><i style='display:table-row'>a</i>"
         "</div><i style='display:table-row'>b</i></div>",
            u"a\nb"},
        {"x<div style='display:inline-table'><i style='display:table-row'>a</i><i style='display:table-row'>b"
         "</i></div>y",
            u"x\na\nb\ny"},
        {"<div style='display:table'><i style='display:table-row'>a<b style='display:table-cell'>b</b>c</i>"
         "</div>",
            u"a\nb\nc"},
        {"<table><tr><td style='display:block'>a</td><td style='display:block'>b</td></tr></table>", u"a\nb"},
    });
}

TEST(FormulaText, IsThatOfItsElements)
{
    expectTexts({
        {"<math><mi>x</mi><mo>=</mo><mn>1</mn></math>", u"x=1"},
        {"<math><semantics><mi>x</mi><annotation encoding=TeX>x_1</annotation></semantics></math>", u"x"},
        {"<math><msup><mi>r</mi><mn>2</mn></msup></math>", u"r2"},
    });
}

TEST(FormulaText, KeepsThePartsOfAFractionApart)
{
    expectTexts({
        {"<math><mfrac><mn>3</mn><mn>4</mn></mfrac></math>", u"3 4"},
        {"so <math><mn>2</mn><mfrac><mn>3</mn><mn>4</mn></mfrac></math>on. ", u"so 2 3 4 on."},
        {"<math><mfrac><mfrac><mn>1</mn><mn>2</mn></mfrac><mrow><mi>x</mi><mi>y</mi></mrow></mfrac></math>"
         "<p>b",
            u"1 2 xy\n\nb"},
    });
}

TEST(FormulaText, KeepsTheCellsOfAMatrixApart)
{
    expectTexts({
        {"<math><mi>A</mi><mrow><mtable><mtr><mtd><mi>a</mi></mtd><mtd><mi>b</mi></mtd></mtr>"
         "<mtr><mtd><mi>c</mi></mtd><mtd><msup><mi>d</mi><mn>2</mn></msup></mtd></mtr></mtable></mrow>"
         "</math> on",
            u"A a b c d2 on"},
    });
}
