// SPDX-License-Identifier: MIT
// "quillbay text": opens a window with the counts of a document or of standard input.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/NamedDocument.h"
#include "command/ServiceCommand.h"
#include "documents/rtfd/RtfdWriter.h"

#include <new>

namespace {

constexpr char textHelp[] = R"(Usage: quillbay text [FILE]

Opens a small window with the counts of FILE. Without FILE, or if FILE is -, reads
standard input. FILE can be plain text in any encoding, RTF, RTFD, a web page, a
Word document, an OpenDocument text, an EPUB or a PDF file, as for
'quillbay count'.

  -h, --help  print this help and exit

Exit status: 0 if the window has opened, 1 if not, 2 after wrong usage.
)";

/// As flat RTFD, which keeps attributes and attachments, beside the file, whose name the window gets.
Result<Pasteboard, QString> pasteboardOf(const QByteArray &name)
{
    const Result<AttributedString, DocumentError> text = loadNamedDocument(name);
    if (!text)
        return causeText(text.error());
    Result<QByteArray, DocumentError> data = RTFDFromRange(text.value(), 0, text.value().length());
    if (!data)
        return causeText(data.error());
    Pasteboard::Forms forms{{QString::fromUtf16(Pasteboard::flatRtfdType), std::move(data).value()}};
    if (name != standardInputName)
        forms.emplace(QString::fromUtf16(Pasteboard::urlListType), urlLineOfFile(name));
    return Pasteboard(std::move(forms));
}

int openWindow(const QByteArray &name)
{
    const Result<Pasteboard, QString> pasteboard = pasteboardOf(name);
    if (!pasteboard) {
        reportDocumentFailure(name, pasteboard.error());
        return 1;
    }
    return performService(
        QStringLiteral("wordCountSelectedTextService"), pasteboard.value(), FailureReport::StandardError);
}

} // namespace

int runTextCommand(int wordCount, char **words)
{
    const std::optional<CommandWords> wanted = CommandWords::parse("text", {}, wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printText(textHelp);
    if (wanted->operands.size() > 1)
        return reportWrongUsage("text", "one file at a time");
    const QByteArray name = wanted->operands.isEmpty() ? standardInputName : wanted->operands.first();
    // Every step allocates buffers as large as the document.
    try {
        return openWindow(name);
    } catch (const std::bad_alloc &) {
        reportDocumentFailure(name, causeText(FileError{FileError::Cause::NotEnoughMemory}));
        return 1;
    }
}
