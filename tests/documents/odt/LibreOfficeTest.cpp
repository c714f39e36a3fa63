// SPDX-License-Identifier: MIT
// Has LibreOffice write one text in every format, and compares their counts; reads its own templates, and
// compares the words with those of its text export.
#include "tests/documents/LibreOffice.h"
#include "documents/reading/DocumentReader.h"
#include "tests/documents/odt/OdtTest.h"
#include "text_statistics/TextCounter.h"

#include <QDate>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include <array>
#include <span>

namespace {

class OdtAndLibreOffice : public QuillbayTest {
protected:
    void SetUp() override
    {
        SKIP_WITHOUT_PACKAGE(LibreOffice::isInstalled(), "libreoffice-writer or libreoffice-writer-nogui");
    }
};

struct Counts {
    quint64 words;
    quint64 characters;
    quint64 sentences;
    quint64 paragraphs;

    bool operator==(const Counts &) const = default;
};

void PrintTo(const Counts &counts, std::ostream *stream)
{
    *stream << counts.words << " words, " << counts.characters << " characters, " << counts.sentences
            << " sentences, " << counts.paragraphs << " paragraphs";
}

Counts countsOf(const QString &text)
{
    const TextRules rules{.localeIdentifier = [] { return QStringLiteral("en_US"); }};
    const QBYWordCounterStats stats = TextCounter().count(text, rules);
    return {stats.numberOfWords, stats.numberOfCharacters, stats.numberOfSentences, stats.numberOfParagraphs};
}

QString readAs(DocumentKind kind, const QByteArray &bytes)
{
    const Result<AttributedString, DocumentError> text = readDocument(kind, bytes);
    EXPECT_TRUE(text.hasValue()) << (text ? "" : qPrintable(causeText(text.error())));
    return text ? text.value().string() : QString();
}

const QByteArray changes =
    "<text:tracked-changes><text:changed-region text:id='c1'><text:deletion><office:change-info><dc:creator>A"
    "</dc:creator><dc:date>2020-01-01T00:00:00</dc:date></office:change-info><text:p>gone</text:p></"
    "text:deletion>"
    "</text:changed-region><text:changed-region "
    "text:id='c2'><text:insertion><office:change-info><dc:creator>A"
    "</dc:creator><dc:date>2020-01-01T00:00:00</dc:date></office:change-info></text:insertion></"
    "text:changed-region>"
    "</text:tracked-changes>";

QByteArray paragraph(const QByteArray &content)
{
    return "<text:p>" + content + "</text:p>";
}

QByteArray item(const QByteArray &content)
{
    return "<text:list-item>" + content + "</text:list-item>";
}

QByteArray cell(const QByteArray &content)
{
    return "<table:table-cell>" + content + "</table:table-cell>";
}

QByteArray note(const QByteArray &kind, const QByteArray &text)
{
    return "<text:note text:note-class='" + kind
        + "'><text:note-citation>1</text:note-citation><text:note-body>" + paragraph(text)
        + "</text:note-body></text:note>";
}

/// Headings, lists, tables, notes, changes, boxes, columns, tabulators, fields and several scripts.
LibreOffice::Document richDocument()
{
    return {.body = changes + "<text:h text:outline-level='1'>The first heading</text:h>"
            + paragraph(
                "A plain paragraph. It has two sentences, a tab<text:tab/>here and three<text:s text:c='3'/>"
                "spaces.")
            + "<text:list text:style-name='L1'>" + item(paragraph("First item."))
            + item(
                paragraph("Second item.") + "<text:list>" + item(paragraph("Inner item.")) + "</text:list>")
            + "</text:list><table:table table:name='T'><table:table-column "
              "table:number-columns-repeated='2'/>"
            + "<table:table-row>" + cell(paragraph("Cell one.")) + cell(paragraph("Cell two has words."))
            + "</table:table-row><table:table-row>" + cell(paragraph(""))
            + cell(paragraph("Last cell.") + paragraph("Again.")) + "</table:table-row></table:table>"
            + paragraph("A footnote " + note("footnote", "The text of the footnote.") + "and an endnote "
                + note("endnote", "The text of the endnote.") + "too.")
            + paragraph(
                "Kept <text:change text:change-id='c1'/><text:change-start text:change-id='c2'/>and inserted"
                "<text:change-end text:change-id='c2'/> text.")
            + paragraph(
                "<draw:frame text:anchor-type='paragraph' svg:width='5cm' svg:height='2cm' draw:name='F'>"
                "<draw:text-box>"
                + paragraph("Text in a box.") + "</draw:text-box></draw:frame>The anchor of the box.")
            + "<text:section text:style-name='S2' text:name='Columns'>" + paragraph("Text in two columns.")
            + "</text:section>"
            + paragraph("Page <text:page-number>1</text:page-number> and a <text:a xlink:type='simple'"
                        " xlink:href='http://example.invalid/'>link to nothing</text:a>.")
            + "<text:p text:style-name='R'>\xD9\x86\xD8\xB5 \xD8\xB9\xD8\xB1\xD8\xA8\xD9\x8A \xD9\x82\xD8\xB5"
              "\xD9\x8A\xD8\xB1.</text:p>"
            + paragraph("\xE4\xB8\xAD\xE6\x96\x87\xE6\x96\x87\xE6\x9C\xAC\xE3\x80\x82\xE7\xAC\xAC\xE4\xBA\x8C"
                        "\xE5\x8F\xA5\xE3\x80\x82")
            + paragraph("Emoji \xF0\x9F\x98\x80 here, and a line<text:line-break/>below.")
            + paragraph(
                "A remark<office:annotation><dc:creator>A</dc:creator><text:p>REMARK</text:p>"
                "</office:annotation> is no text. <text:span text:style-name='H'>Hidden words. </text:span>"
                "Shown words.")
            + paragraph("") + paragraph("The end."),
        .styles =
            "<style:style style:name='H' style:family='text'><style:text-properties text:display='none'/>"
            "</style:style><style:style style:name='R' style:family='paragraph'><style:paragraph-properties"
            " style:writing-mode='rl-tb'/></style:style><style:style style:name='S2' style:family='section'>"
            "<style:section-properties><style:columns fo:column-count='2' fo:column-gap='0.5cm'/>"
            "</style:section-properties></style:style><text:list-style style:name='L1'>"
            "<text:list-level-style-number text:level='1' style:num-format='1' style:num-suffix='.'/>"
            "<text:list-level-style-bullet text:level='2' "
            "text:bullet-char='\xE2\x80\xA2'/></text:list-style>"};
}

/// Without what the export adds: marks of lists and the date of today, which fields show after every load.
QStringList wordsOf(const QString &text)
{
    static const QRegularExpression space(QStringLiteral("[\\s\\x{2028}]+"));
    const QStringList added = QStringList{QStringLiteral("\u2022"), QStringLiteral("\u2013")}
        + QLocale(QLocale::English).toString(QDate::currentDate(), QStringLiteral("MMMM d, yyyy")).split(u' ')
        + QStringList{QDate::currentDate().toString(QStringLiteral("MM/dd/yy"))};
    QStringList words;
    for (const QString &word : text.split(space, Qt::SkipEmptyParts)) {
        if (!added.contains(word))
            words.append(word);
    }
    return words;
}

/// What differs in a format, and why.
struct Deviation {
    const char16_t *inFormat;
    const char16_t *inSource;
    const char *reason;
};

QString withoutDeviations(QString text, std::span<const Deviation> deviations)
{
    for (const Deviation &deviation : deviations) {
        const QString inFormat = QString::fromUtf16(deviation.inFormat);
        EXPECT_EQ(text.count(inFormat), 1) << deviation.reason << '\n' << qPrintable(text);
        text.replace(inFormat, QString::fromUtf16(deviation.inSource));
    }
    return text;
}

} // namespace

TEST_F(OdtAndLibreOffice, CountTheSameTextAlikeInEveryFormat)
{
    constexpr std::array htmlDeviations{
        Deviation{u"footnote 1and", u"footnote and", "a browser shows the numbers of notes"},
        Deviation{u"endnote itoo", u"endnote too", "a browser shows the numbers of notes"},
        Deviation{u"1The text", u"The text", "a browser shows the numbers of notes"},
        Deviation{u"iThe text", u"The text", "a browser shows the numbers of notes"},
        Deviation{u"Kept gone", u"Kept ", "the export to HTML accepts no deletion"},
        Deviation{u"a line\nbelow", u"a line\u2028below", "a line of HTML ends in one way only"},
    };
    const struct {
        const char *extension;
        DocumentKind kind;
        std::span<const Deviation> deviations;
    } formats[]{
        {"odt", DocumentKind::OpenDocument, {}}, {"docx", DocumentKind::WordDocument, {}},
        {"rtf", DocumentKind::Rtf, {}}, {"html", DocumentKind::Html, htmlDeviations},
        {"fodt", DocumentKind::OpenDocument, {}}, // last: it replaces the source
    };
    const LibreOffice::Document document = richDocument();
    const Counts expected =
        countsOf(styledTextOf({.body = document.body, .automaticStyles = document.styles}).string());
    ASSERT_GT(expected.words, 80U);
    for (const auto &format : formats) {
        const QByteArray bytes =
            LibreOffice::convert(document, QString::fromLatin1(format.extension), world().root());
        const QString text = withoutDeviations(readAs(format.kind, bytes), format.deviations);
        EXPECT_EQ(countsOf(text), expected) << format.extension << '\n' << qPrintable(text);
    }
}

TEST_F(OdtAndLibreOffice, FindTheSameWordsInItsTemplates)
{
    const QStringList files = LibreOffice::templates();
    if (files.isEmpty())
        GTEST_SKIP() << "LibreOffice has no templates of texts here";
    const QHash<QString, QString> exports = LibreOffice::textExports(files, world().root());
    for (const QString &file : files) {
        const QString name = QFileInfo(file).completeBaseName();
        ASSERT_TRUE(exports.contains(name)) << qPrintable(name);
        if (name.startsWith(QStringLiteral("stl-")))
            continue; // of styles: their only text is in headers, which the export includes here
        QStringList missing = wordsOf(exports.value(name));
        for (const QString &word : wordsOf(readAs(DocumentKind::OpenDocument, readFile(file))))
            missing.removeOne(word);
        EXPECT_EQ(missing, QStringList()) << qPrintable(name);
    }
}
