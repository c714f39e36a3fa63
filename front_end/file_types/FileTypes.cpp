// SPDX-License-Identifier: MIT
#include "front_end/file_types/FileTypes.h"

#include "front_end/file_types/FileTypeNames.h"

#include <QDir>
#include <QFileInfo>
#include <QMimeDatabase>

#include <algorithm>
#include <optional>

namespace {

/// Absent for what is not there, is no local file or may not be read.
std::optional<QFileInfo> readableFile(const QUrl &url)
{
    if (!url.isLocalFile())
        return std::nullopt;
    // A folder's URL may end in a slash, behind which QFileInfo would see an empty name.
    const QFileInfo file(QDir::cleanPath(url.toLocalFile()));
    if (!file.exists() || !file.isReadable())
        return std::nullopt;
    return file;
}

bool doesConformTo(const QUrl &url, QStringView typeName)
{
    const std::optional<QFileInfo> file = readableFile(url);
    // A folder is a folder, and a device a device, whatever its name.
    if (!file || !file->isFile())
        return false;
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(file->fileName());
    return std::any_of(types.begin(), types.end(),
        [name = typeName.toString()](const QMimeType &type) { return type.inherits(name); });
}

} // namespace

bool QBYExtension::doesConformToDocXFileUTI(const QUrl &url)
{
    return doesConformTo(url, FileTypeNames::wordDocument);
}

bool QBYExtension::doesConformToRTFFileUTI(const QUrl &url)
{
    return doesConformTo(url, FileTypeNames::richText);
}

bool QBYExtension::doesConformToRTFDFileUTI(const QUrl &url)
{
    // The MIME database knows folders only as folders.
    const std::optional<QFileInfo> file = readableFile(url);
    return file && file->isDir() && file->suffix().compare(u"rtfd", Qt::CaseInsensitive) == 0;
}

bool QBYExtension::doesConformToPlainTextFileUTI(const QUrl &url)
{
    return doesConformTo(url, FileTypeNames::text);
}
