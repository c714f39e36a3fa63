// SPDX-License-Identifier: MIT
#include "documents/html/HtmlReader.h"

#include "documents/html/HtmlText.h"
#include "documents/html/HtmlTree.h"
#include "platform/text_encoding/DeclaredEncoding.h"
#include "platform/text_encoding/EncodingConverter.h"

#include <cstring>
#include <new>

namespace {

/// Bytes, of which the text never has fewer than code units.
constexpr qsizetype longestInput = INT32_MAX - 1;

Result<AttributedString, DocumentError> readUtf8(QByteArrayView page)
{
    const Result<HtmlTree, DocumentError::Cause> tree = HtmlTree::parse(page);
    if (!tree)
        return DocumentError(tree.error(), DocumentKind::Html);
    return textOfPage(tree.value().document());
}

} // namespace

Result<AttributedString, DocumentError> readHtml(QByteArrayView bytes, const HtmlOptions &options)
{
    if (bytes.size() > longestInput)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Html);
    try {
        const TextEncoding encoding = encodingOfPage(bytes, options.charset);
        const QByteArrayView page = bytes.sliced(encoding.markLength);
        if (std::strcmp(encoding.name, "UTF-8") == 0 && page.isValidUtf8())
            return readUtf8(page);
        return readUtf8(decodeText(page, encoding.name).toUtf8());
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Html);
    }
}
