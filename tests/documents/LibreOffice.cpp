// SPDX-License-Identifier: MIT
#include "tests/documents/LibreOffice.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr int timeout = 110'000; // ms

QString program()
{
    return QStandardPaths::findExecutable(QStringLiteral("soffice"));
}

QByteArray flatDocument(const LibreOffice::Document &document)
{
    return "<?xml version='1.0' encoding='UTF-8'?><office:document"
           " xmlns:office='urn:oasis:names:tc:opendocument:xmlns:office:1.0'"
           " xmlns:text='urn:oasis:names:tc:opendocument:xmlns:text:1.0'"
           " xmlns:style='urn:oasis:names:tc:opendocument:xmlns:style:1.0'"
           " xmlns:fo='urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0'"
           " xmlns:svg='urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0'"
           " xmlns:draw='urn:oasis:names:tc:opendocument:xmlns:drawing:1.0'"
           " xmlns:table='urn:oasis:names:tc:opendocument:xmlns:table:1.0'"
           " xmlns:dc='http://purl.org/dc/elements/1.1/' xmlns:xlink='http://www.w3.org/1999/xlink'"
           " office:version='1.2' office:mimetype='application/vnd.oasis.opendocument.text'>"
           "<office:automatic-styles>"
        + document.styles + "</office:automatic-styles><office:master-styles>" + document.masterStyles
        + "</office:master-styles><office:body><office:text>" + document.body
        + "</office:text></office:body></office:document>";
}

} // namespace

bool LibreOffice::isInstalled()
{
    return !program().isEmpty();
}

QByteArray LibreOffice::convert(const Document &document, const QString &extension, const QString &folder)
{
    QFile source(folder + QStringLiteral("/document.fodt"));
    if (!source.open(QIODevice::WriteOnly))
        return {};
    source.write(flatDocument(document));
    source.close();
    const bool isText = extension == QStringLiteral("txt");
    QProcess office;
    // Without the name of its filter it takes the document for a plain text of XML.
    office.start(program(),
        {QStringLiteral("--headless"),
            QStringLiteral("-env:UserInstallation=file://") + folder + QStringLiteral("/office"),
            QStringLiteral("--infilter=OpenDocument Text Flat XML"), QStringLiteral("--convert-to"),
            isText ? QStringLiteral("txt:Text (encoded):UTF8,LF") : extension, QStringLiteral("--outdir"),
            folder, source.fileName()});
    QFile made(folder + QStringLiteral("/document.") + extension);
    if (!office.waitForFinished(timeout) || !made.open(QIODevice::ReadOnly))
        return {};
    return made.readAll();
}

QString LibreOffice::textExport(const Document &document, const QString &folder)
{
    const QString text = QString::fromUtf8(convert(document, QStringLiteral("txt"), folder));
    return text.startsWith(QChar::ByteOrderMark) ? text.sliced(1) : text;
}
