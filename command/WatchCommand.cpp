// SPDX-License-Identifier: MIT
// "quillbay watch": opens a window for each file, whose counts follow every save.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/LeftOutFiles.h"
#include "command/NamedDocument.h"
#include "command/ServiceCommand.h"
#include "platform/pasteboard/Selection.h"
#include "platform/services/PasteboardWire.h"
#include "platform/system/FileURL.h"

#include <algorithm>
#include <new>

namespace {

constexpr FailureReport report = FailureReport::StandardErrorAndNotification;

struct CheckedFiles {
    QByteArray urlList; ///< RFC 2483, of the files that can be counted
    LeftOutFiles leftOut;
};

/// Reports the files that cannot be counted on standard error.
CheckedFiles checkFiles(const QByteArrayList &names)
{
    CheckedFiles checked;
    for (const QByteArray &name : names) {
        const Result<AttributedString, DocumentError> text = loadDocument(name, {.readsPdf = true});
        if (text) {
            checked.urlList += urlLineOfFile(name);
            continue;
        }
        checked.leftOut.add(name, causeText(text.error()));
    }
    return checked;
}

int watch(const QByteArrayList &names)
{
    const CheckedFiles files = checkFiles(names);
    int status = files.leftOut.isEmpty() ? 0 : 1;
    if (!files.urlList.isEmpty()) {
        const Pasteboard pasteboard({{QString::fromUtf16(Pasteboard::urlListType), files.urlList}});
        const int sent = performService(QStringLiteral("watchTheTextFileService"), pasteboard, report);
        status = std::max(status, sent);
    }
    // Last: a notification server may take its time.
    files.leftOut.notify();
    return status;
}

int watchCopiedFiles()
{
    const Result<Pasteboard, SelectionFailure> copied =
        readSelection(SelectionName::Clipboard, SelectionContent::Files, PasteboardWire::maxPasteboardSize);
    if (!copied)
        return reportFailure(causeText(copied.error()), report);
    QByteArrayList names;
    for (const QUrl &url : copied.value().readFileURLs())
        names.append(pathOfFileURL(url));
    if (names.isEmpty())
        return reportFailure(
            CommandText::tr("the copied files are not on this computer; copy them here and watch the copies"),
            report);
    return watch(names);
}

} // namespace

int runWatchCommand(const CommandWords &words)
{
    const bool fromClipboard = words.switches.contains("clipboard");
    if (words.operands.isEmpty() != fromClipboard)
        return reportWrongUsage("watch",
            fromClipboard ? CommandText::tr("either --clipboard or files, not both")
                          : CommandText::tr("no file given"));
    try {
        return fromClipboard ? watchCopiedFiles() : watch(namesOfOperands(words.operands));
    } catch (const std::bad_alloc &) {
        return reportFailure(causeText(FileError{FileError::Cause::NotEnoughMemory}), report);
    }
}
