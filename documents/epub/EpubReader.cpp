// SPDX-License-Identifier: MIT
#include "documents/epub/EpubReader.h"

#include "documents/epub/EpubSpine.h"
#include "documents/html/HtmlReader.h"
#include "documents/package/ZipPackage.h"

#include <QHash>

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

/// The style sheets of a book, each unpacked once. A sheet that cannot be read hides nothing.
class BookSheets {
public:
    explicit BookSheets(const ZipPackage &package)
        : m_package(package)
    {
    }

    /// To which a page refers.
    QByteArray sheetAt(const QByteArray &page, const QByteArray &reference)
    {
        const QByteArray part = partAt(m_package, page, reference);
        const auto known = m_sheets.constFind(part);
        if (known != m_sheets.cend())
            return *known;
        const Result<QByteArray, Cause> contents = m_package.contents(part);
        QByteArray sheet = contents ? contents.value() : QByteArray();
        constexpr QByteArrayView mark("\xEF\xBB\xBF");
        if (sheet.startsWith(mark))
            sheet.remove(0, mark.size());
        return *m_sheets.insert(part, sheet);
    }

private:
    const ZipPackage &m_package;
    QHash<QByteArray, QByteArray> m_sheets; // by part
};

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
    BookSheets sheets(package.value());
    AttributedStringBuilder book;
    AttributedString last; // page with text
    for (const QByteArray &part : pages.value()) {
        const Result<QByteArray, Cause> page = package.value().contents(part);
        if (!page)
            return page.error();
        Result<AttributedString, DocumentError> text = readHtml(
            page.value(), {.charset = {}, .isXhtml = true, .linkedSheet = [&](const QByteArray &reference) {
                               return sheets.sheetAt(part, reference);
                           }});
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
