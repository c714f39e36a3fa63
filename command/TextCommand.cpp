// SPDX-License-Identifier: MIT
// "quillbay text": opens a window with the counts of a document or of standard input.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/NamedDocument.h"
#include "command/ServiceCommand.h"
#include "documents/rtfd/RtfdWriter.h"
#include "manual/HelpText.h"
#include "manual/ManualPages.h"

#include <new>

namespace {

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
    if (name != standardInputName && !isNamedPipe(name))
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
    const std::optional<CommandWords> wanted = CommandWords::parse(textPage(), wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printText(helpText(textPage()));
    if (wanted->operands.size() > 1)
        return reportWrongUsage("text", CommandText::tr("one file at a time"));
    const QByteArray name = wanted->operands.isEmpty() ? standardInputName : wanted->operands.first();
    // Every step allocates buffers as large as the document.
    try {
        return openWindow(name);
    } catch (const std::bad_alloc &) {
        reportDocumentFailure(name, causeText(FileError{FileError::Cause::NotEnoughMemory}));
        return 1;
    }
}
