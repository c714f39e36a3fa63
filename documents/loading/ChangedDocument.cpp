// SPDX-License-Identifier: MIT
#include "documents/loading/ChangedDocument.h"

#include "documents/loading/SandboxedReader.h"
#include "documents/rtfd/RtfdPackage.h"
#include "platform/files/FileContents.h"

namespace {

using Known = std::optional<ContentHash>;

/// read: called where the bytes are not the known ones.
template <typename Read>
Result<ChangedDocument, DocumentError> readUnlessKnown(
    const QByteArray &path, const QByteArray &bytes, const Known &known, const Read &read)
{
    const ContentHash hash = contentHash(bytes, contentHash(path));
    if (known == hash)
        return ChangedDocument{hash, std::nullopt};
    Result<AttributedString, DocumentError> text = read(bytes);
    if (!text)
        return text.error();
    return ChangedDocument{hash, std::move(text).value()};
}

Result<ChangedDocument, DocumentError> loadFile(
    const QByteArray &path, const Known &known, const std::stop_token &stop)
{
    const Result<QByteArray, FileError> contents = readFile(path);
    if (!contents)
        return DocumentError(contents.error());
    return readUnlessKnown(path, contents.value(), known,
        [&](const QByteArray &bytes) { return readBytes(bytes, path, {.readsPdf = true, .stop = stop}); });
}

Result<ChangedDocument, DocumentError> loadPackage(
    const QByteArray &path, const Known &known, const std::stop_token &stop)
{
    const Result<QByteArray, DocumentError> contents = flatRtfdOfPackage(path);
    if (!contents)
        return contents.error();
    return readUnlessKnown(path, contents.value(), known, [&stop](const QByteArray &bytes) {
        return SandboxedReader::shared().read(DocumentKind::Rtfd, bytes, {.stop = stop});
    });
}

} // namespace

Result<ChangedDocument, DocumentError> loadIfChanged(
    const QByteArray &path, const Known &known, const std::stop_token &stop)
{
    return isRtfdPackage(path) ? loadPackage(path, known, stop) : loadFile(path, known, stop);
}
