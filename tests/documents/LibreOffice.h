// SPDX-License-Identifier: MIT
// LibreOffice converts documents with LibreOffice, if it is installed.
// Thread: one at a time.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

namespace LibreOffice {

bool isInstalled();

/// A flat OpenDocument text.
struct Document {
    QByteArray body; ///< content of office:text
    QByteArray styles = {}; ///< content of office:automatic-styles
    QByteArray masterStyles = {}; ///< content of office:master-styles
};

/// The document in another format; empty if the conversion fails. extension: "odt", "xml" (a flat
/// OpenDocument text), "docx", "rtf", "html", "pdf" or "txt" (UTF-8 with a byte order mark). folder: for
/// temporary files and the settings of LibreOffice.
QByteArray convert(const Document &document, const QString &extension, const QString &folder);

/// The text export, without its byte order mark.
QString textExport(const Document &document, const QString &folder);

/// The text exports of documents in files, by the names of the files without their extensions.
QHash<QString, QString> textExports(const QStringList &files, const QString &folder);

/// Its templates of texts; empty if they are not installed.
QStringList templates();

} // namespace LibreOffice
