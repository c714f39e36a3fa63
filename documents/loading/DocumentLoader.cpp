// SPDX-License-Identifier: MIT
#include "documents/loading/DocumentLoader.h"

#include "documents/loading/PdfText.h"
#include "documents/loading/SandboxedReader.h"
#include "documents/reading/KindDetection.h"
#include "documents/rtfd/RtfdPackage.h"
#include "platform/files/FileContents.h"

namespace {

Result<AttributedString, DocumentError> readContents(
    const Result<QByteArray, FileError> &contents, const QByteArray &path, const ReadOptions &options)
{
    if (!contents)
        return DocumentError(contents.error());
    return readBytes(contents.value(), path, options);
}

Result<AttributedString, DocumentError> loadPackage(const QByteArray &path, const ReadOptions &options)
{
    const Result<QByteArray, DocumentError> bytes = flatRtfdOfPackage(path);
    return bytes ? SandboxedReader::shared().read(DocumentKind::Rtfd, bytes.value(), options) : bytes.error();
}

Result<AttributedString, DocumentError> readPdfFile(QByteArrayView bytes, const ReadOptions &options)
{
    if (!options.readsPdf)
        return DocumentError(DocumentError::Cause::PdfNotSupported, DocumentKind::Pdf);
    Result<AttributedString, DocumentError> text =
        SandboxedReader::shared().read(DocumentKind::Pdf, bytes, options);
    if (!text)
        return text;
    const std::optional<DocumentError::Cause> fault = faultOfPdfText(text.value().string());
    return fault ? DocumentError(*fault, DocumentKind::Pdf) : std::move(text);
}

} // namespace

Result<AttributedString, DocumentError> loadDocument(const QByteArray &path, const ReadOptions &options)
{
    return !options.asText && isRtfdPackage(path) ? loadPackage(path, options)
                                                  : readContents(readFile(path), path, options);
}

Result<AttributedString, DocumentError> loadDocument(int descriptor, const ReadOptions &options)
{
    return readContents(readDescriptor(descriptor), {}, options);
}

Result<DocumentKind, DocumentError> kindToReadAs(
    const QByteArray &path, QByteArrayView bytes, const ReadOptions &options)
{
    const Result<DocumentKind, DocumentError> kind =
        options.asText ? DocumentKind::PlainText : kindOfDocument(path, bytes);
    return kind && kind.value() == DocumentKind::PlainText ? options.plainTextAs : kind;
}

Result<AttributedString, DocumentError> readBytes(
    QByteArrayView bytes, const QByteArray &path, const ReadOptions &options)
{
    const Result<DocumentKind, DocumentError> kind = kindToReadAs(path, bytes, options);
    if (!kind)
        return kind.error();
    return kind.value() == DocumentKind::Pdf ? readPdfFile(bytes, options)
                                             : SandboxedReader::shared().read(kind.value(), bytes, options);
}
