// SPDX-License-Identifier: MIT
#include "watching/FileTypes.h"

#include "documents/DocumentKind.h"
#include "documents/reading/KindDetection.h"
#include "platform/system/FileURL.h"
#include "platform/system/OwnedDescriptor.h"

#include <QMimeDatabase>

#include <algorithm>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// The MIME types of the kinds of documents.
constexpr QStringView folder = u"inode/directory"; // of rich text with attachments
constexpr QStringView richText = u"application/rtf";
constexpr QStringView plainText = u"text/plain";
constexpr QStringView wordDocument =
    u"application/vnd.openxmlformats-officedocument.wordprocessingml.document";
constexpr QStringView wordTemplate =
    u"application/vnd.openxmlformats-officedocument.wordprocessingml.template";

/// The MIME types of the kinds beside these four.
QStringList otherTypes()
{
    return mimeTypes(DocumentKind::OpenDocument) + mimeTypes(DocumentKind::Epub);
}

/// The mode of the file, with symbolic links followed. Absent for missing and unreadable files and other
/// URLs.
std::optional<mode_t> readableFileMode(const QUrl &url)
{
    const QByteArray path = pathOfFileURL(url);
    struct stat status;
    if (path.isEmpty() || ::stat(path.constData(), &status) != 0 || ::access(path.constData(), R_OK) != 0)
        return std::nullopt;
    return status.st_mode;
}

/// Absent if the file cannot be read.
std::optional<QByteArray> startOfFile(const QByteArray &path)
{
    constexpr qsizetype startLength = 65'536;
    const OwnedDescriptor file(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    QByteArray start(startLength, Qt::Uninitialized);
    const ssize_t length = ::read(file.get(), start.data(), static_cast<size_t>(startLength));
    if (length < 0)
        return std::nullopt;
    start.truncate(length);
    return start;
}

bool doesConformTo(const QUrl &url, QStringView typeName)
{
    const std::optional<mode_t> mode = readableFileMode(url);
    // Folders and devices are no documents, whatever their names.
    if (!mode || !S_ISREG(*mode))
        return false;
    const QList<QMimeType> types = QMimeDatabase().mimeTypesForFileName(lastPathComponent(url));
    return std::any_of(types.begin(), types.end(),
        [name = typeName.toString()](const QMimeType &type) { return type.inherits(name); });
}

} // namespace

bool QBYExtension::doesConformToDocXFileUTI(const QUrl &url)
{
    return doesConformTo(url, wordDocument) || doesConformTo(url, wordTemplate);
}

bool QBYExtension::doesConformToRTFFileUTI(const QUrl &url)
{
    return doesConformTo(url, richText);
}

bool QBYExtension::doesConformToRTFDFileUTI(const QUrl &url)
{
    // The MIME database has one type for all folders.
    const std::optional<mode_t> mode = readableFileMode(url);
    return mode && S_ISDIR(*mode) && lastPathComponent(url).endsWith(u".rtfd", Qt::CaseInsensitive);
}

bool QBYExtension::doesConformToPlainTextFileUTI(const QUrl &url)
{
    return doesConformTo(url, plainText);
}

bool QBYExtension::isDocumentOfAnotherKind(const QUrl &url)
{
    const QStringList types = otherTypes();
    return std::any_of(
        types.begin(), types.end(), [&url](const QString &type) { return doesConformTo(url, type); });
}

bool QBYExtension::isReadableDocument(const QUrl &url)
{
    const std::optional<mode_t> mode = readableFileMode(url);
    if (!mode || !S_ISREG(*mode))
        return false;
    const QByteArray path = pathOfFileURL(url);
    const std::optional<QByteArray> start = startOfFile(path);
    return start && kindOfDocument(path, *start);
}

OpenPanel QBYExtension::openPanelForTextFiles()
{
    return openPanelForTextFilesAllowMultipleSelection(false);
}

OpenPanel QBYExtension::openPanelForTextFilesAllowMultipleSelection(bool allowMultipleSelection)
{
    OpenPanel panel;
    for (const QStringView type : {folder, richText, plainText, wordDocument, wordTemplate})
        panel.allowedFileTypes << type.toString();
    panel.allowedFileTypes << otherTypes();
    for (quint32 kind = 1; kind <= static_cast<quint32>(lastDocumentKind); ++kind)
        panel.otherFileTypes += mimeTypes(static_cast<DocumentKind>(kind));
    panel.packageSuffixes.append(QStringLiteral("rtfd"));
    panel.allowsMultipleSelection = allowMultipleSelection;
    return panel;
}
