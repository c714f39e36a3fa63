// SPDX-License-Identifier: MIT
// Documents that LibreOffice has written, held against the text that it writes itself.
#include "tests/platform/styled_text/docx/DocxTest.h"

#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr int patience = 110'000; // ms

class DocxFromLibreOffice : public QuillbayTest {
protected:
    void SetUp() override
    {
        m_office = QStandardPaths::findExecutable(QStringLiteral("soffice"));
        if (m_office.isEmpty())
            GTEST_SKIP() << "LibreOffice is not installed";
    }

    /// What LibreOffice makes of a flat text document with this body; the extension names the format.
    [[nodiscard]] QByteArray converted(const QByteArray &body, const QString &extension) const
    {
        const QString source = writeFile(QStringLiteral("document.fodt"),
            "<?xml version='1.0' encoding='UTF-8'?><office:document"
            " xmlns:office='urn:oasis:names:tc:opendocument:xmlns:office:1.0'"
            " xmlns:text='urn:oasis:names:tc:opendocument:xmlns:text:1.0'"
            " xmlns:table='urn:oasis:names:tc:opendocument:xmlns:table:1.0'"
            " xmlns:xlink='http://www.w3.org/1999/xlink' office:version='1.2'"
            " office:mimetype='application/vnd.oasis.opendocument.text'><office:body><office:text>"
                + body + "</office:text></office:body></office:document>");
        QProcess office;
        office.start(m_office,
            {QStringLiteral("--headless"),
                QStringLiteral("-env:UserInstallation=file://") + world().home() + QStringLiteral("/office"),
                QStringLiteral("--convert-to"),
                extension == QStringLiteral("txt") ? QStringLiteral("txt:Text (encoded):UTF8,LF") : extension,
                QStringLiteral("--outdir"), world().root(), source});
        EXPECT_TRUE(office.waitForFinished(patience))
            << qPrintable(QString::fromUtf8(office.readAllStandardError()));
        return readFile(world().root() + QStringLiteral("/document.") + extension);
    }

    QString m_office;
};

} // namespace

TEST_F(DocxFromLibreOffice, ReadsAsItsOwnTextExport)
{
    const QByteArray body =
        "<text:h text:outline-level='1'>A heading</text:h>"
        "<text:p>Plain <text:span>text</text:span> with <text:a xlink:href='http://x.y/'>a link"
        "</text:a>, a tab<text:tab/>and three<text:s text:c='3'/>spaces \xE2\x80\x9Cquoted\xE2\x80\x9D."
        "</text:p><text:p/><text:p>Zeichen: \xC3\xA4\xC3\xB6\xC3\xBC \xE9\x9B\xA8 "
        "\xF0\x9F\x90\x9F</text:p><text:list><text:list-item><text:p>first</text:p></text:list-item>"
        "<text:list-item><text:p>second</text:p></text:list-item></text:list>"
        "<table:table table:name='T'><table:table-column table:number-columns-repeated='2'/>"
        "<table:table-row><table:table-cell><text:p>a1</text:p></table:table-cell><table:table-cell>"
        "<text:p>b1</text:p></table:table-cell></table:table-row><table:table-row><table:table-cell>"
        "<text:p>a2</text:p></table:table-cell><table:table-cell><text:p>b2</text:p>"
        "</table:table-cell></table:table-row></table:table><text:p>The end.</text:p>";
    const QString exported = QString::fromUtf8(converted(body, QStringLiteral("txt")));
    const Result<AttributedString, DocxError> text = readDocx(converted(body, QStringLiteral("docx")));
    ASSERT_TRUE(text.hasValue());
    ASSERT_FALSE(exported.isEmpty());
    // The text export begins with a byte order mark.
    EXPECT_EQ(text.value().string(), exported.mid(exported.startsWith(QChar::ByteOrderMark) ? 1 : 0));
}
