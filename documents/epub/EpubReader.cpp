// SPDX-License-Identifier: MIT
#include "documents/epub/EpubReader.h"

#include "documents/epub/EpubSpine.h"
#include "documents/html/HtmlReader.h"
#include "documents/package/ZipPackage.h"

#include <new>
#include <utility>

namespace {

using Cause = DocumentError::Cause;

// Uncompressed bytes of pages; pictures and fonts are not read. The longest books have some 20 MB.
constexpr qint64 maxBookLength = 67'108'864;

Cause causeOfPage(Cause cause)
{
    return cause == Cause::TooLong ? Cause::TooLarge : cause;
}

void appendPage(AttributedStringBuilder &book, AttributedString &last, AttributedString page)
{
    if (page.isEmpty())
        return;
    if (!last.isEmpty() && !last.string().endsWith(u'\n'))
        book.append(u"\n", last.attributesAt(last.length() - 1));
    book.append(page);
    last = std::move(page);
}

Result<AttributedString, Cause> readBook(QByteArrayView bytes)
{
    ReadAllowance allowance{.bytes = maxBookLength};
    const Result<ZipPackage, Cause> package = ZipPackage::open(bytes, allowance);
    if (!package)
        return package.error();
    if (!package.value().contains(epubContainerPart))
        return Cause::WrongKind;
    const Result<std::vector<QByteArray>, Cause> pages = pagesOfEpub(package.value());
    if (!pages)
        return pages.error();
    AttributedStringBuilder book;
    AttributedString last; // page with text
    for (const QByteArray &part : pages.value()) {
        const Result<QByteArray, Cause> page = package.value().contents(part);
        if (!page)
            return page.error();
        Result<AttributedString, DocumentError> text =
            readHtml(page.value(), {.charset = {}, .isXhtml = true});
        if (!text)
            return causeOfPage(text.error().cause);
        appendPage(book, last, std::move(text).value());
    }
    return book.build();
}

} // namespace

Result<AttributedString, DocumentError> readEpub(QByteArrayView bytes)
{
    try {
        Result<AttributedString, Cause> text = readBook(bytes);
        if (text)
            return std::move(text).value();
        return DocumentError(text.error(), DocumentKind::Epub);
    } catch (const std::bad_alloc &) {
        return DocumentError(Cause::NotEnoughMemory, DocumentKind::Epub);
    }
}
