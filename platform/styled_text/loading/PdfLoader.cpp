// SPDX-License-Identifier: MIT
#include "platform/styled_text/loading/PdfLoader.h"

#include "platform/files/FileContents.h"
#include "platform/styled_text/loading/DocumentKind.h"
#include "platform/styled_text/pdf/PdfReader.h"
#include "platform/styled_text/pdf/UnmappedText.h"

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
