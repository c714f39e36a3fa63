// SPDX-License-Identifier: MIT
#include "platform/styled_text/loading/DocumentLoader.h"

#include "platform/files/FileContents.h"

#include <new>

namespace {

using LoadResult = Result<AttributedString, LoadError>;

LoadResult documentFromContents(const Result<QByteArray, FileError> &contents, const DocumentOptions &options)
{
    if (!contents)
        return LoadError(contents.error());
    return documentFromBytes(contents.value(), options);
}

} // namespace

QString causeText(const LoadError &error)
{
    return std::visit([](const auto &cause) { return causeText(cause); }, error);
}

LoadResult loadDocument(const QByteArray &path, const DocumentOptions &options)
{
    return documentFromContents(readFile(path), options);
}

LoadResult loadDocument(int descriptor, const DocumentOptions &options)
{
    return documentFromContents(readDescriptor(descriptor), options);
}

LoadResult documentFromBytes(QByteArrayView bytes, const DocumentOptions &)
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
