// SPDX-License-Identifier: MIT
#include "documents/reading/DocumentReader.h"

#include "documents/PlainTextReader.h"
#include "documents/docx/DocxReader.h"
#include "documents/epub/EpubReader.h"
#include "documents/html/HtmlReader.h"
#include "documents/markup/LatexReader.h"
#include "documents/markup/MarkdownReader.h"
#include "documents/odt/OdtReader.h"
#include "documents/rtf/RtfReader.h"
#include "documents/rtfd/RtfdReader.h"

#include <algorithm>
#include <array>
#include <new>

namespace {

using Text = Result<AttributedString, DocumentError>;
using Read = Text (*)(QByteArrayView bytes, const ReadOptions &options);

Text readPlain(QByteArrayView bytes, const ReadOptions &options)
{
    const Result<PlainText, DocumentError> text = readPlainText(bytes, options.charset);
    if (!text)
        return text.error();
    try {
        return AttributedString(text.value().text);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::PlainText);
    }
}

Text readWordDocument(QByteArrayView bytes, const ReadOptions &)
{
    return readDocx(bytes, [](DocumentKind kind, QByteArrayView chunk, const QByteArray &charset) {
        return readDocument(kind, chunk, {.charset = charset});
    });
}

Text refusePdfFile(QByteArrayView, const ReadOptions &)
{
    return DocumentError(DocumentError::Cause::PdfNotSupported, DocumentKind::Pdf);
}

struct Reader {
    DocumentKind kind;
    Read read;
};

constexpr std::array readers{
    Reader{DocumentKind::PlainText, readPlain},
    Reader{DocumentKind::Rtf, [](QByteArrayView bytes, const ReadOptions &) { return readRtf(bytes); }},
    Reader{DocumentKind::Rtfd, [](QByteArrayView bytes, const ReadOptions &) { return readFlatRtfd(bytes); }},
    Reader{DocumentKind::Html,
        [](QByteArrayView bytes, const ReadOptions &options) {
            return readHtml(bytes, {.charset = options.charset});
        }},
    Reader{DocumentKind::WordDocument, readWordDocument},
    Reader{DocumentKind::Pdf, refusePdfFile},
    Reader{DocumentKind::OpenDocument,
        [](QByteArrayView bytes, const ReadOptions &) { return readOpenDocument(bytes); }},
    Reader{DocumentKind::Epub, [](QByteArrayView bytes, const ReadOptions &) { return readEpub(bytes); }},
    Reader{DocumentKind::Markdown,
        [](QByteArrayView bytes, const ReadOptions &options) {
            return readMarkdown(bytes, options.charset);
        }},
    Reader{DocumentKind::Latex,
        [](QByteArrayView bytes, const ReadOptions &options) { return readLatex(bytes, options.charset); }},
};
static_assert(readers.size() == static_cast<size_t>(lastDocumentKind));

} // namespace

Text readDocument(DocumentKind kind, QByteArrayView bytes, const ReadOptions &options)
{
    const auto *const reader = std::find_if(
        readers.begin(), readers.end(), [kind](const Reader &candidate) { return candidate.kind == kind; });
    if (reader == readers.end())
        return DocumentError(DocumentError::Cause::WrongKind, kind);
    return reader->read(bytes, options);
}
