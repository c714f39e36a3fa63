// SPDX-License-Identifier: MIT
#include "watching/FileTypes.h"

#include "platform/system/FileURL.h"
#include "watching/FileTypeNames.h"

#include <QMimeDatabase>

#include <algorithm>
#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// What the name leads to. Absent for what is not there, is no local file or may not be read.
std::optional<mode_t> readableFile(const QUrl &url)
{
    const QByteArray path = pathOfFileURL(url);
    struct stat status;
    if (path.isEmpty() || ::stat(path.constData(), &status) != 0 || ::access(path.constData(), R_OK) != 0)
        return std::nullopt;
    return status.st_mode;
}

bool doesConformTo(const QUrl &url, QStringView typeName)
{
    const std::optional<mode_t> file = readableFile(url);
    // A folder is a folder, and a device a device, whatever its name.
    if (!file || !S_ISREG(*file))
        return false;
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(lastPathComponent(url));
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
    const std::optional<mode_t> file = readableFile(url);
    return file && S_ISDIR(*file) && lastPathComponent(url).endsWith(u".rtfd", Qt::CaseInsensitive);
}

bool QBYExtension::doesConformToPlainTextFileUTI(const QUrl &url)
{
    return doesConformTo(url, FileTypeNames::text);
}
