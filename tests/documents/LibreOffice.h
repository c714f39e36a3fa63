// SPDX-License-Identifier: MIT
// LibreOffice as another writer of documents, where it is installed.
// Thread: one at a time.
#pragma once

#include <QByteArray>
#include <QString>

namespace LibreOffice {

bool isInstalled();

/// What LibreOffice makes of a flat OpenDocument text. body: what is within office:text; styles: what is
/// within office:automatic-styles; masterStyles: what is within office:master-styles. extension: of the
/// format to write: "docx", "pdf", "txt" (UTF-8, with a byte order mark). folder: to work in, with the user's
/// files of LibreOffice. Empty where that fails.
struct Document {
    QByteArray body;
    QByteArray styles = {};
    QByteArray masterStyles = {};
};
QByteArray converted(const Document &document, const QString &extension, const QString &folder);

/// The text export, without its byte order mark.
QString textExport(const Document &document, const QString &folder);

} // namespace LibreOffice
