// SPDX-License-Identifier: MIT
#include "tests/documents/odt/OdtTest.h"

TEST(OdtText, EndsEveryParagraphAndHeadingWithALineEnd)
{
    EXPECT_EQ(textOfBody("<text:h text:outline-level='1'>Title</text:h><text:p>one</text:p><text:p/>"
                         "<text:p>two</text:p>"),
        u"Title\none\n\ntwo\n");
    EXPECT_EQ(textOfBody(""), u"");
}

TEST(OdtText, CollapsesWhiteSpace)
{
    EXPECT_EQ(textOfBody("\n  <text:p>\n  one\n\t two <text:span> three</text:span>\n</text:p>\n"),
        u"one two three \n");
}

TEST(OdtText, ReadsElementsForSpacesTabulatorsAndLineBreaks)
{
    EXPECT_EQ(textOfBody("<text:p>a<text:s/>b<text:s text:c='3'/>c<text:tab/>d<text:line-break/>e"
                         "<text:soft-page-break/>f</text:p>"),
        u"a b   c\td\u2028ef\n");
    EXPECT_EQ(textOfBody("<text:p><text:s text:c='0'/>a<text:s text:c='-5'/>b<text:s text:c='x'/>c</text:p>"),
        u" a b c\n");
    EXPECT_EQ(textOfBody("<text:p><text:tab/> a</text:p>"), u"\t a\n");
}

TEST(OdtText, ReadsTheTextOfListsWithoutTheirNumbers)
{
    EXPECT_EQ(textOfBody("<text:list><text:list-header><text:p>head</text:p></text:list-header>"
                         "<text:list-item><text:number>1.</text:number><text:p>one</text:p>"
                         "<text:list><text:list-item><text:p>deep</text:p></text:list-item></text:list>"
                         "</text:list-item></text:list><text:numbered-paragraph><text:number>2.</text:number>"
                         "<text:p>two</text:p></text:numbered-paragraph>"),
        u"head\none\ndeep\ntwo\n");
}

TEST(OdtText, ReadsTheCellsOfTables)
{
    const QByteArray nested = "<table:table><table:table-row><table:table-cell><text:p>in</text:p>"
                              "</table:table-cell></table:table-row></table:table>";
    EXPECT_EQ(
        textOfBody("<table:table><table:table-column table:number-columns-repeated='1000000'/>"
                   "<table:table-header-rows><table:table-row><table:table-cell><text:p>h</text:p>"
                   "</table:table-cell></table:table-row></table:table-header-rows><table:table-row>"
                   "<table:table-cell table:number-columns-repeated='1000000'/><table:covered-table-cell>"
                   "<text:p>covered</text:p></table:covered-table-cell><table:table-cell><text:p>a</text:p>"
            + nested + "<text:p>b</text:p></table:table-cell></table:table-row></table:table>"),
        u"h\n\na\nin\nb\n");
}

TEST(OdtText, ReadsNotesBehindTheBodyAndFootnotesBeforeEndnotes)
{
    const auto note = [](const QByteArray &kind, const QByteArray &text) {
        return "<text:note text:note-class='" + kind + "'><text:note-citation>1</text:note-citation>"
            + "<text:note-body><text:p>" + text + "</text:p></text:note-body></text:note>";
    };
    EXPECT_EQ(textOfBody("<text:p>one" + note("endnote", "end") + " two" + note("footnote", "first")
                  + " three" + note("footnote", "second") + "</text:p><text:p>four</text:p>"),
        u"one two three\nfour\nfirst\nsecond\nend\n");
}

TEST(OdtText, ReadsATextBoxAfterTheParagraphThatAnchorsIt)
{
    const auto box = [](const QByteArray &text) {
        return "<draw:frame><draw:text-box>" + text
            + "</draw:text-box><svg:title>title</svg:title></draw:frame>";
    };
    EXPECT_EQ(textOfBody("<text:p>before "
                  + box("<text:p>in" + box("<text:p>deep</text:p>") + "side</text:p>") + "after</text:p>"),
        u"before after\ninside\ndeep\n");
    EXPECT_EQ(
        textOfBody(box("<text:p>on the page</text:p>") + "<text:p>body</text:p>"), u"on the page\nbody\n");
    EXPECT_EQ(
        textOfBody("<text:p>a<draw:g><draw:custom-shape><text:p>shape</text:p></draw:custom-shape></draw:g>"
                   "<draw:a><draw:frame><draw:image><office:binary-data>QUJD</office:binary-data>"
                   "<text:p>of the picture</text:p></draw:image><svg:desc>described</svg:desc></draw:frame>"
                   "</draw:a></text:p>"),
        u"a\nshape\n");
}

TEST(OdtText, ReadsChangesAsAccepted)
{
    EXPECT_EQ(
        textOfBody("<text:tracked-changes><text:changed-region><text:deletion><office:change-info>"
                   "<dc:creator>A</dc:creator></office:change-info><text:p>gone</text:p></text:deletion>"
                   "</text:changed-region></text:tracked-changes><text:p>kept<text:change/>"
                   "<text:change-start/> new<text:change-end/></text:p>"),
        u"kept new\n");
}

TEST(OdtText, ReadsNoDeletionsThatAreStoredInTheBody)
{
    const QByteArray changes = "<text:tracked-changes><text:changed-region text:id='d'><text:deletion/>"
                               "</text:changed-region><text:changed-region text:id='i'><text:insertion/>"
                               "</text:changed-region></text:tracked-changes>";
    const auto deleted = [](const QByteArray &text) {
        return "<text:change-start text:change-id='d'/>" + text + "<text:change-end text:change-id='d'/>";
    };
    EXPECT_EQ(textOfBody(changes + "<text:p>a" + deleted("gone")
                  + "<text:change-start text:change-id='i'/>b"
                    "<text:change-end text:change-id='i'/></text:p>"),
        u"ab\n");
    EXPECT_EQ(textOfBody(changes + "<text:p>a" + deleted("x</text:p><text:p/><text:p>y")
                  + "b</text:p><text:p>c</text:p>"),
        u"ab\nc\n");
    EXPECT_EQ(
        textOfBody(changes + "<text:p>a</text:p>"
            + deleted("<table:table><table:table-row><table:table-cell><text:p>x</text:p></table:table-cell>"
                      "<table:table-cell/></table:table-row></table:table>")
            + "<text:p>b</text:p>"),
        u"a\nb\n");
    EXPECT_EQ(textOfBody(changes + "<text:p>a" + deleted("x</text:p>")), u"a\n");
}

TEST(OdtText, ReadsNoComments)
{
    EXPECT_EQ(textOfBody("<text:p>a<office:annotation><dc:creator>B</dc:creator><text:p>remark</text:p>"
                         "</office:annotation>b<office:annotation-end/></text:p>"),
        u"ab\n");
}

TEST(OdtText, ReadsNoHiddenText)
{
    const QByteArray styles = "<style:style style:name='H' style:family='text'>"
                              "<style:text-properties text:display='none'/></style:style>"
                              "<style:style style:name='S' style:family='text' style:parent-style-name='H'>"
                              "<style:text-properties text:display='true'/></style:style>"
                              "<style:style style:name='HP' style:family='paragraph'>"
                              "<style:text-properties text:display='none'/></style:style>";
    EXPECT_EQ(textOfBody("<text:p>a<text:span text:style-name='H'>secret<text:span text:style-name='S'>b"
                         "</text:span></text:span>c</text:p>",
                  styles),
        u"abc\n");
    EXPECT_EQ(textOfBody("<text:p text:style-name='HP'>a</text:p><text:p text:style-name='HP'/>"
                         "<text:p><text:span text:style-name='H'>b</text:span></text:p><text:p>c</text:p>",
                  styles),
        u"c\n");
    EXPECT_EQ(
        textOfBody("<text:section text:display='none'><text:p>a</text:p></text:section>"
                   "<text:section text:display='condition' text:is-hidden='true'><text:p>b</text:p>"
                   "</text:section><text:section text:display='condition'><text:p>c</text:p></text:section>"),
        u"c\n");
    EXPECT_EQ(textOfBody("<text:p>a<text:hidden-paragraph text:is-hidden='true'/></text:p>"
                         "<text:p>b<text:hidden-paragraph text:is-hidden='false'/></text:p>"
                         "<text:p>c<text:hidden-text text:is-hidden='true'>d</text:hidden-text></text:p>"),
        u"b\nc\n");
    EXPECT_EQ(
        textOfBody("<text:p>a<text:span text:style-name='H'><text:note text:note-class='footnote'>"
                   "<text:note-body><text:p>note</text:p></text:note-body></text:note><draw:frame>"
                   "<draw:text-box><text:p>box</text:p></draw:text-box></draw:frame></text:span></text:p>",
            styles),
        u"a\n");
}

TEST(OdtText, ReadsTheShownTextOfFields)
{
    EXPECT_EQ(textOfBody("<text:p>page <text:page-number text:select-page='current'>7</text:page-number>, "
                         "<text:placeholder text:placeholder-type='text'>&lt;name&gt;</text:placeholder>, "
                         "<text:variable-set text:display='none'>x</text:variable-set>"
                         "<text:a xlink:href='http://a.b/'>link</text:a>, Table "
                         "<text:sequence text:name='Table'>2</text:sequence><text:script>code</text:script>"
                         "<loext:content-control>choice</loext:content-control></text:p>"),
        u"page 7, <name>, link, Table 2choice\n");
}

TEST(OdtText, ReadsTheBaseOfRuby)
{
    EXPECT_EQ(textOfBody("<text:p><text:ruby><text:ruby-base>base</text:ruby-base><text:ruby-text>above"
                         "</text:ruby-text></text:ruby></text:p>"),
        u"base\n");
}

TEST(OdtText, ReadsFormulas)
{
    const QByteArray formula = "<math:math><math:semantics><math:mrow><math:mi>x</math:mi><math:mo> = "
                               "</math:mo><math:mfrac><math:mn>3"
                               "</math:mn><math:mn>4</math:mn></"
                               "math:mfrac><math:mtable><math:mtr><math:mtd><math:mi>a</math:mi></math:mtd>"
                               "<math:mtd><math:mi>b</math:mi></math:mtd></math:mtr></math:mtable></"
                               "math:mrow><math:annotation>source"
                               "</math:annotation></math:semantics></math:math>";
    const auto paragraph = [](const QByteArray &object) {
        return "<text:p>let <draw:frame>" + object + "<draw:image/></draw:frame>be</text:p>";
    };
    const QString expected = QStringLiteral("let x= 3 4 a b be\n");
    EXPECT_EQ(textOfBody(paragraph("<draw:object>" + formula + "</draw:object>")), expected);
    ZipWriter zip = OpenDocumentText{.body = paragraph("<draw:object xlink:href='./Object 1'/>")
            + paragraph("<draw:object xlink:href='Chart'/>")
            + paragraph("<draw:object xlink:href='missing'/>")}
                        .writer();
    zip.add({.name = "Object 1/content.xml",
        .contents = QByteArray(formula).replace(
            "<math:math>", "<math:math xmlns:math='http://www.w3.org/1998/Math/MathML'>")});
    zip.add({.name = "Chart/content.xml", .contents = "<chart>text</chart>"});
    EXPECT_EQ(
        readOpenDocument(zip.archive()).value().string(), expected + QStringLiteral("let be\nlet be\n"));
}

TEST(OdtText, ReadsIndexesWithoutTheirSources)
{
    EXPECT_EQ(
        textOfBody("<text:table-of-content><text:table-of-content-source><text:index-title-template>T"
                   "</text:index-title-template></text:table-of-content-source><text:index-body>"
                   "<text:index-title><text:p>Contents</text:p></text:index-title><text:p>One<text:tab/>1"
                   "</text:p></text:index-body></text:table-of-content>"),
        u"Contents\nOne\t1\n");
}

TEST(OdtText, ReadsNoHeadersFootersFormsAndDeclarations)
{
    EXPECT_EQ(
        styledTextOf({.body = "<office:forms>form</office:forms><text:sequence-decls><text:sequence-decl/>"
                              "</text:sequence-decls><text:p>a</text:p>",
                         .masterStyles = "<style:master-page><style:header><text:p>header</text:p>"
                                         "</style:header></style:master-page>"})
            .string(),
        u"a\n");
}

TEST(OdtText, ReadsSymbolsAsTheCharactersThatTheyShow)
{
    EXPECT_EQ(textOfBody("<text:p><text:span text:style-name='S'>\xEF\x81\xA1</text:span></text:p>",
                  "<style:style style:name='S' style:family='text'>"
                  "<style:text-properties fo:font-family='Symbol'/></style:style>"),
        u"\u03B1\n");
}
