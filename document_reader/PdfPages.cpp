// SPDX-License-Identifier: MIT
#include "document_reader/PdfPages.h"

#include "document_reader/RaisedDigits.h"

#include <QBuffer>
#include <QPdfDocument>

#include <algorithm>

namespace {

constexpr QByteArrayView signature("%PDF-");
constexpr qsizetype signatureReach = 1024; // bytes at the start of a file, as in other readers of PDF

/// A hyphen that divides a word at the end of a line: a mark of PDFium, not a character.
constexpr char16_t dividingHyphen = 0xFFFE;
constexpr char16_t softHyphen = 0x00AD;
constexpr QStringView lineEnd(u"\r\n"); // as Qt Pdf ends lines

bool isWhiteSpace(char byte)
{
    return byte == ' ' || byte == '\n' || byte == '\r' || byte == '\t' || byte == '\f' || byte == '\0';
}

/// Whether a file has a page tree without pages, which Qt Pdf does not open. Object streams, which are
/// compressed, are not searched.
bool isWithoutPages(QByteArrayView bytes)
{
    constexpr QByteArrayView children("/Kids");
    bool hasTree = false;
    for (qsizetype at = bytes.indexOf(children); at >= 0; at = bytes.indexOf(children, at + 1)) {
        const auto *const array =
            std::find_if_not(bytes.begin() + at + children.size(), bytes.end(), isWhiteSpace);
        if (array == bytes.end() || *array != '[')
            return false;
        const auto *const first = std::find_if_not(array + 1, bytes.end(), isWhiteSpace);
        if (first == bytes.end() || *first != ']')
            return false;
        hasTree = true;
    }
    return hasTree;
}

DocumentError::Cause causeOf(QPdfDocument::Error error, QByteArrayView bytes)
{
    if (error == QPdfDocument::Error::IncorrectPassword
        || error == QPdfDocument::Error::UnsupportedSecurityScheme)
        return DocumentError::Cause::Encrypted;
    const QByteArrayView start = bytes.first(std::min(bytes.size(), signatureReach));
    if (!start.contains(signature))
        return DocumentError::Cause::WrongKind;
    return isWithoutPages(bytes) ? DocumentError::Cause::NoPages : DocumentError::Cause::Damaged;
}

} // namespace

std::optional<DocumentError::Cause> forEachPdfPage(QByteArrayView bytes, const TakePage &take)
{
    QByteArray contents = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer file(&contents);
    if (contents.isEmpty() || !file.open(QIODevice::ReadOnly))
        return DocumentError::Cause::WrongKind;
    QPdfDocument document;
    document.load(&file);
    if (document.status() != QPdfDocument::Status::Ready)
        return causeOf(document.error(), bytes);
    const int pageCount = document.pageCount();
    if (pageCount == 0)
        return DocumentError::Cause::NoPages;
    RaisedDigits pages(document);
    for (int page = 0; page < pageCount; ++page) {
        QString text = pages.textOfPage(page);
        text.replace(QChar(dividingHyphen), QChar(softHyphen));
        if (!text.isEmpty() && !text.endsWith(u'\n'))
            text.append(lineEnd); // Qt Pdf omits it after the last line
        if (!take(text))
            break;
    }
    return std::nullopt;
}
