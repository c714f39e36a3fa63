// SPDX-License-Identifier: MIT
// "quillbay watch": opens a window for each file, whose counts follow every save.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/NamedDocument.h"
#include "command/ServiceCommand.h"
#include "manual/HelpText.h"
#include "manual/ManualPages.h"
#include "platform/pasteboard/Selection.h"
#include "platform/services/PasteboardWire.h"

#include <new>

namespace {

constexpr FailureReport report = FailureReport::StandardErrorAndNotification;

/// A list of URLs (RFC 2483) of the files that can be counted; reports the others and sets isComplete to
/// false.
QByteArray urlListOfFiles(const QByteArrayList &names, bool &isComplete)
{
    QByteArray list;
    for (const QByteArray &name : names) {
        if (const Result<AttributedString, DocumentError> text = loadDocument(name, {.readsPdf = true});
            !text) {
            reportDocumentFailure(name, causeText(text.error()));
            isComplete = false;
            continue;
        }
        list += urlLineOfFile(name);
    }
    return list;
}

int send(const Pasteboard &pasteboard)
{
    return performService(QStringLiteral("watchTheTextFileService"), pasteboard, report);
}

int watchCopiedFiles()
{
    const Result<Pasteboard, SelectionFailure> files =
        readSelection(SelectionName::Clipboard, SelectionContent::Files, PasteboardWire::maxPasteboardSize);
    return files ? send(files.value()) : reportFailure(causeText(files.error()), report);
}

int watch(const QByteArrayList &names)
{
    bool isComplete = true;
    const QByteArray list = urlListOfFiles(names, isComplete);
    if (list.isEmpty())
        return 1;
    const int status = send(Pasteboard({{QString::fromUtf16(Pasteboard::urlListType), list}}));
    return isComplete ? status : 1;
}

} // namespace

int runWatchCommand(int wordCount, char **words)
{
    const std::optional<CommandWords> wanted = CommandWords::parse(watchPage(), wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printText(helpText(watchPage()));
    const bool fromClipboard = wanted->switches.contains("clipboard");
    if (wanted->operands.isEmpty() != fromClipboard)
        return reportWrongUsage(
            "watch", fromClipboard ? "either --clipboard or files, not both" : "no file given");
    if (fromClipboard)
        return watchCopiedFiles();
    try {
        return watch(wanted->operands);
    } catch (const std::bad_alloc &) {
        return reportFailure(causeText(FileError{FileError::Cause::NotEnoughMemory}), report);
    }
}
