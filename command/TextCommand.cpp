// SPDX-License-Identifier: MIT
// "quillbay text": opens a window with the counts of each document or of standard input.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/FileNames.h"
#include "command/LeftOutFiles.h"
#include "command/NamedDocument.h"
#include "command/ServiceCommand.h"
#include "documents/rtfd/RtfdWriter.h"

#include <new>
#include <optional>

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

/// Why the file cannot be counted. Absent if its window has opened, or has not for another reason, which is
/// reported and makes status that of a failure.
std::optional<QString> openWindow(const QByteArray &name, int &status)
{
    // Every step allocates buffers as large as the document.
    try {
        const Result<Pasteboard, QString> pasteboard = pasteboardOf(name);
        if (!pasteboard)
            return pasteboard.error();
        status = performService(QStringLiteral("wordCountSelectedTextService"), pasteboard.value(),
            name == standardInputName ? FailureReport::StandardError
                                      : FailureReport::StandardErrorAndNotification);
        return std::nullopt;
    } catch (const std::bad_alloc &) {
        return causeText(FileError{FileError::Cause::NotEnoughMemory});
    }
}

/// The exit status. Stops where the service fails: it would for the other files too.
int openWindows(const QByteArrayList &names)
{
    LeftOutFiles leftOut;
    int status = 0;
    for (qsizetype i = 0; i < names.size() && status == 0; ++i) {
        if (const std::optional<QString> cause = openWindow(names[i], status))
            leftOut.add(names[i], *cause);
    }
    if (names.first() != standardInputName)
        leftOut.notify();
    return leftOut.isEmpty() ? status : 1;
}

} // namespace

int runTextCommand(const CommandWords &words)
{
    return openWindows(
        words.operands.isEmpty() ? QByteArrayList{standardInputName} : namesOfOperands(words.operands));
}
