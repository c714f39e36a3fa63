// SPDX-License-Identifier: MIT
// Compares documents written by LibreOffice with its own text export.
#include "tests/documents/LibreOffice.h"
#include "tests/documents/docx/DocxTest.h"

namespace {

class DocxFromLibreOffice : public QuillbayTest {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(LibreOffice::isInstalled(), "libreoffice-writer or libreoffice-writer-nogui");
    }

    static QString read(const LibreOffice::Document &document)
    {
        const QByteArray bytes = LibreOffice::convert(document, QStringLiteral("docx"), world().root());
        const Result<AttributedString, DocumentError> text = readWordDocument(bytes);
        return text ? text.value().string() : causeText(text.error());
    }

    static QString exportText(const LibreOffice::Document &document)
    {
        const QString text = LibreOffice::textExport(document, world().root());
        EXPECT_FALSE(text.contains(QStringLiteral("<office:"))) << "the document was not understood";
        return text;
    }
};

/// A difference between the text export and the document, and its reason.
struct Deviation {
    QStringView exported;
    QStringView inDocument;
    const char *reason;
};

} // namespace

TEST_F(DocxFromLibreOffice, ReadsLikeTheTextExport)
{
    const LibreOffice::Document document{
        "<text:h text:outline-level='1'>A heading</text:h>"
        "<text:p>Plain <text:span>text</text:span> with <text:a xlink:href='http://x.y/'>a link"
        "</text:a>, a tab<text:tab/>and three<text:s text:c='3'/>spaces \xE2\x80\x9Cquoted\xE2\x80\x9D."
        "</text:p><text:p/><text:p>Zeichen: \xC3\xA4\xC3\xB6\xC3\xBC \xE9\x9B\xA8 "
        "\xF0\x9F\x90\x9F, Hy\xC2\xADphen, no\xE2\x80\x91"
        "break, nb\xC2\xA0space</text:p>"
        "<text:p>\xD7\xA2\xD7\x91\xD7\xA8\xD7\x99\xD7\xAA and \xD8\xB9\xD8\xB1\xD8\xA8\xD9\x8A</text:p>"
        "<text:p>comment<office:annotation><dc:creator>A</dc:creator><text:p>REMARK</text:p></"
        "office:annotation>"
        " here <text:bookmark text:name='b'/>mark, <text:ruby><text:ruby-base>base</text:ruby-base>"
        "<text:ruby-text>RUBY</text:ruby-text></text:ruby></text:p>"
        "<table:table table:name='T'><table:table-column table:number-columns-repeated='2'/>"
        "<table:table-row><table:table-cell><text:p>a1</text:p></table:table-cell><table:table-cell>"
        "<text:p>b1</text:p></table:table-cell></table:table-row><table:table-row><table:table-cell>"
        "<text:p>a2</text:p><table:table table:name='U'><table:table-column/><table:table-row>"
        "<table:table-cell><text:p>in</text:p></table:table-cell></table:table-row></table:table>"
        "<text:p>behind</text:p></table:table-cell><table:table-cell><text:p>b2</text:p>"
        "</table:table-cell></table:table-row></table:table><text:p>The end.</text:p>"};
    const QString text = exportText(document);
    ASSERT_TRUE(text.startsWith(QStringLiteral("A heading\nPlain text with a link, a tab\tand")))
        << qPrintable(text);
    EXPECT_EQ(read(document), text);
}

TEST_F(DocxFromLibreOffice, DiffersFromTheTextExportIfThatLacksTextOfThePages)
{
    const LibreOffice::Document document{
        .body =
            "<text:tracked-changes><text:changed-region text:id='c1'><text:deletion><office:change-info>"
            "<dc:creator>A</dc:creator><dc:date>2020-01-01T00:00:00</dc:date></office:change-info>"
            "<text:p>gone</text:p></text:deletion></text:changed-region><text:changed-region text:id='c2'>"
            "<text:insertion><office:change-info><dc:creator>A</dc:creator><dc:date>2020-01-01T00:00:00"
            "</dc:date></office:change-info></text:insertion></text:changed-region></text:tracked-changes>"
            "<text:p>line one<text:line-break/>line two and a note<text:note text:note-class='footnote'>"
            "<text:note-citation>1</text:note-citation><text:note-body><text:p>Foot text</text:p>"
            "</text:note-body></text:note>.</text:p>"
            "<text:p>hidden <text:span text:style-name='H'>SECRET </text:span>shown</text:p>"
            "<text:p>kept <text:change text:change-id='c1'/><text:change-start text:change-id='c2'/>new"
            "<text:change-end text:change-id='c2'/> end</text:p>"
            "<text:p text:style-name='B'>page <text:page-number>1</text:page-number></text:p>"
            "<text:p><draw:frame text:anchor-type='paragraph' svg:width='5cm' svg:height='2cm'>"
            "<draw:text-box><text:p>boxed text</text:p></draw:text-box></draw:frame>anchor</text:p>"
            "<text:list><text:list-item><text:p>first</text:p></text:list-item></text:list>"
            "<text:p>endnote<text:note text:note-class='endnote'><text:note-citation>i"
            "</text:note-citation><text:note-body><text:p>End text</text:p></text:note-body></text:note>"
            "</text:p>",
        .styles =
            "<style:style style:name='H' style:family='text'><style:text-properties text:display='none'/>"
            "</style:style><style:style style:name='B' style:family='paragraph'>"
            "<style:paragraph-properties fo:break-before='page'/></style:style>"
            "<style:page-layout style:name='L'/>",
        .masterStyles = "<style:master-page style:name='Standard' style:page-layout-name='L'><style:header>"
                        "<text:p>HEADER</text:p></style:header><style:footer><text:p>FOOTER</text:p>"
                        "</style:footer></style:master-page>"};
    constexpr Deviation deviations[]{
        {u"one\nline", u"one\u2028line", "a line break ends no paragraph"},
        {u"note1.", u"note.", "the number of a note is none of the text"},
        {u"SECRET ", u"", "hidden text is on no page"},
        {u"gone", u"", "deleted text is shown struck out, and will be gone"},
        {u"end\n", u"end\f\n", "the writer of .docx ends a page with a break in the paragraph before"},
        {u"page 0", u"page 2", "the text export has no pages to number"},
        {u"anchor\n", u"anchor\nboxed text\n", "a text box is on the page"},
        {u"    \u2022 first", u"first", "the marks of lists are none of the text"},
        {u"endnotei\n", u"endnote\n\tFoot text\n\tEnd text\n",
            "notes follow, a tabulator behind each number"},
    };
    QString expected = exportText(document);
    for (const Deviation &deviation : deviations) {
        EXPECT_EQ(expected.count(deviation.exported.toString()), 1)
            << deviation.reason << qPrintable(expected);
        expected.replace(deviation.exported.toString(), deviation.inDocument.toString());
    }
    EXPECT_EQ(read(document), expected);
}
