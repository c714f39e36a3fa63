// SPDX-License-Identifier: MIT
#include "documents/html/HtmlReader.h"

#include "documents/Lengths.h"
#include "documents/html/HtmlText.h"
#include "documents/html/HtmlTree.h"
#include "documents/html/StyleSheets.h"
#include "documents/html/XhtmlSource.h"
#include "platform/text_encoding/DeclaredEncoding.h"
#include "platform/text_encoding/EncodingConverter.h"

#include <cstring>
#include <new>

namespace {

Result<AttributedString, DocumentError> readUtf8(QByteArrayView page, const HtmlOptions &options)
{
    const Result<HtmlTree, DocumentError::Cause> tree = HtmlTree::parse(page);
    if (!tree)
        return DocumentError(tree.error(), DocumentKind::Html);
    const Result<StyleSheets, DocumentError::Cause> sheets =
        StyleSheets::ofPage(page, tree.value().document(), options.linkedSheet);
    if (!sheets)
        return DocumentError(sheets.error(), DocumentKind::Html);
    Result<AttributedString, DocumentError::Cause> text =
        textOfPage(tree.value().document(), sheets.value(), page.size());
    if (!text)
        return DocumentError(text.error(), DocumentKind::Html);
    return std::move(text).value();
}

} // namespace

Result<AttributedString, DocumentError> readHtml(QByteArrayView bytes, const HtmlOptions &options)
{
    if (bytes.size() > maxDocumentLength)
        return DocumentError(DocumentError::Cause::TooLong, DocumentKind::Html);
    try {
        const TextEncoding encoding = encodingOfPage(bytes, options.charset);
        const QByteArrayView page = bytes.sliced(encoding.markLength);
        if (std::strcmp(encoding.name, "UTF-8") == 0 && page.isValidUtf8())
            return readUtf8(options.isXhtml ? htmlOfXhtml(page) : page, options);
        const QByteArray utf8 = decodeText(page, encoding.name).toUtf8();
        return readUtf8(options.isXhtml ? htmlOfXhtml(utf8) : utf8, options);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Html);
    }
}
