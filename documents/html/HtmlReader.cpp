// SPDX-License-Identifier: MIT
#include "documents/html/HtmlReader.h"

#include "documents/html/HtmlText.h"
#include "documents/html/HtmlTree.h"
#include "platform/text_encoding/DeclaredEncoding.h"
#include "platform/text_encoding/EncodedText.h"

#include <cstring>
#include <new>

namespace {

/// Bytes, of which the text never has fewer than code units.
constexpr qsizetype longestInput = INT32_MAX - 1;

Result<AttributedString, HtmlError> readUtf8(QByteArrayView page)
{
    const Result<HtmlTree, HtmlError> tree = HtmlTree::parse(page);
    if (!tree)
        return tree.error();
    return textOfPage(tree.value().document());
}

} // namespace

QString causeText(HtmlError error)
{
    switch (error) {
    case HtmlError::TooLong:
        return QStringLiteral("is larger than 2 GiB");
    case HtmlError::TooDeep:
        return QStringLiteral("has more than 1000 elements inside each other");
    case HtmlError::TooIntricate:
        return QStringLiteral("has elements too intricate to be read");
    case HtmlError::NotEnoughMemory:
        break;
    }
    return QStringLiteral("not enough memory");
}

Result<AttributedString, HtmlError> readHtml(QByteArrayView bytes, const HtmlOptions &options)
{
    if (bytes.size() > longestInput)
        return HtmlError::TooLong;
    try {
        const TextEncoding encoding = encodingOfPage(bytes, options.charset);
        const QByteArrayView page = bytes.sliced(encoding.markLength);
        if (std::strcmp(encoding.name, "UTF-8") == 0 && page.isValidUtf8())
            return readUtf8(page);
        return readUtf8(decodedText(page, encoding.name).toUtf8());
    } catch (const std::bad_alloc &) {
        return HtmlError::NotEnoughMemory;
    }
}
