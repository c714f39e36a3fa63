// SPDX-License-Identifier: MIT
#include "documents/loading/PdfLoader.h"

#include "documents/loading/KindDetection.h"
#include "documents/pdf/PdfReader.h"
#include "documents/pdf/UnmappedText.h"
#include "documents/rtfd/RtfdReader.h"
#include "platform/files/FileContents.h"

namespace {

using LoadResult = Result<AttributedString, DocumentError>;

LoadResult loadedPdf(QByteArrayView bytes)
{
    Result<AttributedString, DocumentError> text = readPdf(bytes);
    if (!text)
        return text.error();
    if (QStringView(text.value().string()).trimmed().isEmpty())
        return DocumentError(DocumentError::Cause::NoText, DocumentKind::Pdf);
    if (isUnmapped(text.value().string()))
        return DocumentError(DocumentError::Cause::UnmappedText, DocumentKind::Pdf);
    return std::move(text).value();
}

LoadResult loadedContents(const QByteArray &path, const Result<QByteArray, FileError> &contents)
{
    if (!contents)
        return DocumentError(contents.error());
    if (kindOfDocument(path, contents.value()) == DocumentKind::Pdf)
        return loadedPdf(contents.value());
    return documentFromBytes(path, contents.value());
}

} // namespace

LoadResult loadDocumentOrPdf(const QByteArray &path)
{
    return isRtfdPackage(path) ? loadDocument(path) : loadedContents(path, readFile(path));
}

LoadResult loadDocumentOrPdf(int descriptor)
{
    return loadedContents({}, readDescriptor(descriptor));
}
