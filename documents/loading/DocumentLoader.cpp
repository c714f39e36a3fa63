// SPDX-License-Identifier: MIT
#include "documents/loading/DocumentLoader.h"

#include "documents/loading/DocumentKind.h"
#include "platform/files/FileContents.h"

#include <new>

namespace {

using LoadResult = Result<AttributedString, LoadError>;

/// What a reader of one kind gave, with its cause of failure as one of many.
template <typename Error>
LoadResult loaded(Result<AttributedString, Error> document)
{
    if (!document)
        return LoadError(document.error());
    return std::move(document).value();
}

LoadResult loadedPlainText(QByteArrayView bytes)
{
    const Result<PlainText, TextError> plainText = readPlainText(bytes);
    if (!plainText)
        return LoadError(plainText.error());
    try {
        return AttributedString(plainText.value().text);
    } catch (const std::bad_alloc &) {
        return LoadError(TextError::NotEnoughMemory);
    }
}

LoadResult loadedBytes(const QByteArray &path, QByteArrayView bytes)
{
    switch (kindOfDocument(path, bytes)) {
    case DocumentKind::Rtf:
        return loaded(readRtf(bytes));
    case DocumentKind::FlatRtfd:
        return loaded(readFlatRtfd(bytes));
    case DocumentKind::Html:
        return loaded(readHtml(bytes));
    case DocumentKind::WordDocument:
        return loaded(readDocx(bytes));
    case DocumentKind::Pdf:
        return LoadError(PdfError::NotReadHere);
    case DocumentKind::PlainText:
        break;
    }
    return loadedPlainText(bytes);
}

LoadResult loadedContents(const QByteArray &path, const Result<QByteArray, FileError> &contents)
{
    if (!contents)
        return LoadError(contents.error());
    return loadedBytes(path, contents.value());
}

} // namespace

QString causeText(const LoadError &error)
{
    return std::visit([](const auto &cause) { return causeText(cause); }, error);
}

LoadResult loadDocument(const QByteArray &path, const DocumentOptions &)
{
    if (isRtfdPackage(path))
        return loaded(readRtfdPackage(path));
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
