// SPDX-License-Identifier: MIT
#include "documents/loading/PdfLoader.h"

#include "documents/loading/DocumentKind.h"
#include "documents/pdf/PdfReader.h"
#include "documents/pdf/UnmappedText.h"
#include "platform/files/FileContents.h"

namespace {

using LoadResult = Result<AttributedString, LoadError>;

LoadResult loadedPdf(QByteArrayView bytes)
{
    Result<AttributedString, PdfError> text = readPdf(bytes);
    if (!text)
        return LoadError(text.error());
    if (QStringView(text.value().string()).trimmed().isEmpty())
        return LoadError(PdfError::NoText);
    if (isUnmapped(text.value().string()))
        return LoadError(PdfError::UnmappedText);
    return std::move(text).value();
}

LoadResult loadedContents(const QByteArray &path, const Result<QByteArray, FileError> &contents)
{
    if (!contents)
        return LoadError(contents.error());
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
