// SPDX-License-Identifier: MIT
#include "command/TextCommand.h"

#include "command/CommandWords.h"
#include "command/NamedDocument.h"
#include "command/ServiceCommand.h"
#include "documents/rtfd/RtfdWriter.h"

#include <new>

namespace {

constexpr char textHelp[] = R"(Usage: quillbay text [FILE]

Opens a small window with the counts of FILE, or of standard input where FILE is
- or not named. Reads what 'quillbay count' reads: plain text of any encoding,
RTF and RTFD, web pages, Word documents and PDF files.

  -h, --help  show this and leave

Exit status: 0 once the window is there, 1 if there is none, 2 for wrong usage.
)";

/// As every window takes it, attributes and attachments included.
Result<Pasteboard, QString> pasteboardOf(const QByteArray &name)
{
    const Result<AttributedString, DocumentError> text = loadNamedDocument(name);
    if (!text)
        return causeText(text.error());
    Result<QByteArray, DocumentError> data = RTFDFromRange(text.value(), 0, text.value().length());
    if (!data)
        return causeText(data.error());
    return Pasteboard({{QString::fromUtf16(Pasteboard::flatRtfdType), std::move(data).value()}});
}

int openWindow(const QByteArray &name)
{
    const Result<Pasteboard, QString> pasteboard = pasteboardOf(name);
    if (!pasteboard) {
        tellDocumentFailure(name, pasteboard.error());
        return 1;
    }
    return deliverServiceMessage(
        QStringLiteral("wordCountSelectedTextService"), pasteboard.value(), FailureReport::StandardError);
}

} // namespace

int runTextCommand(int wordCount, char **words)
{
    const std::optional<CommandWords> wanted = CommandWords::parse("text", {}, wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printed(textHelp);
    if (wanted->operands.size() > 1)
        return tellWrongUsage("text", "one file at a time");
    const QByteArray name = wanted->operands.isEmpty() ? standardInputName : wanted->operands.first();
    // Every step makes buffers as large as the document.
    try {
        return openWindow(name);
    } catch (const std::bad_alloc &) {
        tellDocumentFailure(name, causeText(FileError{FileError::Cause::NotEnoughMemory}));
        return 1;
    }
}
