// SPDX-License-Identifier: MIT
#include "documents/loading/DocumentLoader.h"

#include "documents/reading/KindDetection.h"
#include "documents/rtfd/RtfdReader.h"
#include "platform/files/FileContents.h"

namespace {

Result<AttributedString, DocumentError> readContents(
    const Result<QByteArray, FileError> &contents, const QByteArray &path, const ReadOptions &options)
{
    if (!contents)
        return DocumentError(contents.error());
    return readBytes(contents.value(), path, options);
}

} // namespace

Result<AttributedString, DocumentError> loadDocument(const QByteArray &path, const ReadOptions &options)
{
    return isRtfdPackage(path) ? readRtfdPackage(path) : readContents(readFile(path), path, options);
}

Result<AttributedString, DocumentError> loadDocument(int descriptor, const ReadOptions &options)
{
    return readContents(readDescriptor(descriptor), {}, options);
}

Result<AttributedString, DocumentError> readBytes(
    QByteArrayView bytes, const QByteArray &path, const ReadOptions &options)
{
    return readDocument(kindOfDocument(path, bytes), bytes, options);
}
