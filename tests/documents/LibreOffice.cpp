// SPDX-License-Identifier: MIT
#include "tests/documents/LibreOffice.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
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

/// The target of a conversion.
QString targetOf(const QString &extension)
{
    if (extension == QStringLiteral("xml")) // it does not write over the source, which is an .fodt
        return QStringLiteral("xml:OpenDocument Text Flat XML");
    return extension == QStringLiteral("txt") ? QStringLiteral("txt:Text (encoded):UTF8,LF") : extension;
}

/// options: before the conversion.
bool convertFiles(const QStringList &files, const QString &extension, const QString &folder,
    const QStringList &options = {})
{
    const QStringList always{QStringLiteral("--headless"),
        QStringLiteral("-env:UserInstallation=file://") + folder + QStringLiteral("/office")};
    const QStringList conversion{
        QStringLiteral("--convert-to"), targetOf(extension), QStringLiteral("--outdir"), folder};
    QProcess office;
    office.start(program(), always + options + conversion + files);
    return office.waitForFinished(timeout);
}

QString withoutMark(const QString &text)
{
    return text.startsWith(QChar::ByteOrderMark) ? text.sliced(1) : text;
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
    // Without the name of its filter it takes the document for a plain text of XML.
    const bool isConverted = convertFiles(
        {source.fileName()}, extension, folder, {QStringLiteral("--infilter=OpenDocument Text Flat XML")});
    QFile made(folder + QStringLiteral("/document.") + extension);
    if (!isConverted || !made.open(QIODevice::ReadOnly))
        return {};
    return made.readAll();
}

QString LibreOffice::textExport(const Document &document, const QString &folder)
{
    return withoutMark(QString::fromUtf8(convert(document, QStringLiteral("txt"), folder)));
}

QHash<QString, QString> LibreOffice::textExports(const QStringList &files, const QString &folder)
{
    QHash<QString, QString> texts;
    if (!convertFiles(files, QStringLiteral("txt"), folder))
        return texts;
    for (const QString &file : files) {
        const QString name = QFileInfo(file).completeBaseName();
        QFile made(folder + u'/' + name + QStringLiteral(".txt"));
        if (made.open(QIODevice::ReadOnly))
            texts.insert(name, withoutMark(QString::fromUtf8(made.readAll())));
    }
    return texts;
}

QStringList LibreOffice::templates()
{
    const QString office = QFileInfo(QFileInfo(program()).canonicalFilePath()).absolutePath();
    QDirIterator files(office + QStringLiteral("/../share/template"), {QStringLiteral("*.ott")}, QDir::Files,
        QDirIterator::Subdirectories);
    QStringList paths;
    while (files.hasNext())
        paths.append(files.next());
    paths.sort();
    return paths;
}
