// SPDX-License-Identifier: MIT
#include "documents/loading/DocumentLoader.h"

#include "documents/PlainTextReader.h"
#include "documents/docx/DocxReader.h"
#include "documents/html/HtmlReader.h"
#include "documents/loading/KindDetection.h"
#include "documents/rtf/RtfReader.h"
#include "documents/rtfd/RtfdReader.h"
#include "platform/files/FileContents.h"

#include <new>

namespace {

using LoadResult = Result<AttributedString, DocumentError>;

LoadResult loadedPlainText(QByteArrayView bytes)
{
    const Result<PlainText, DocumentError> plainText = readPlainText(bytes);
    if (!plainText)
        return plainText.error();
    try {
        return AttributedString(plainText.value().text);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::PlainText);
    }
}

LoadResult loadedBytes(const QByteArray &path, QByteArrayView bytes)
{
    switch (kindOfDocument(path, bytes)) {
    case DocumentKind::Rtf:
        return readRtf(bytes);
    case DocumentKind::Rtfd:
        return readFlatRtfd(bytes);
    case DocumentKind::Html:
        return readHtml(bytes);
    case DocumentKind::WordDocument:
        return readDocx(bytes);
    case DocumentKind::Pdf:
        return DocumentError(DocumentError::Cause::PdfNotSupported, DocumentKind::Pdf);
    case DocumentKind::PlainText:
        break;
    }
    return loadedPlainText(bytes);
}

LoadResult loadedContents(const QByteArray &path, const Result<QByteArray, FileError> &contents)
{
    if (!contents)
        return DocumentError(contents.error());
    return loadedBytes(path, contents.value());
}

} // namespace

LoadResult loadDocument(const QByteArray &path, const DocumentOptions &)
{
    if (isRtfdPackage(path))
        return readRtfdPackage(path);
    return loadedContents(path, readFile(path));
}

LoadResult loadDocument(int descriptor, const DocumentOptions &)
{
    return loadedContents({}, readDescriptor(descriptor));
}

LoadResult documentFromBytes(QByteArrayView bytes, const DocumentOptions &)
{
    return loadedBytes({}, bytes);
}

LoadResult documentFromFile(const QByteArray &path, QByteArrayView bytes)
{
    return loadedBytes(path, bytes);
}

LoadResult documentFromBytes(const QByteArray &path, QByteArrayView bytes)
{
    return loadedBytes(path, bytes);
}
