// SPDX-License-Identifier: MIT
// "quillbay selection": opens a window with the counts of the text that is selected in any application.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/ServiceCommand.h"
#include "platform/pasteboard/Selection.h"
#include "platform/services/PasteboardWire.h"

namespace {

int openWindow(SelectionName name)
{
    constexpr FailureReport report = FailureReport::StandardErrorAndNotification;
    // First, before the user selects something else.
    const Result<Pasteboard, SelectionFailure> pasteboard =
        readSelection(name, SelectionContent::Text, PasteboardWire::maxPasteboardSize);
    if (!pasteboard)
        return reportFailure(causeText(pasteboard.error()), report);
    return performService(QStringLiteral("wordCountSelectedTextService"), pasteboard.value(), report);
}

} // namespace

int runSelectionCommand(const CommandWords &words)
{
    if (!words.operands.isEmpty())
        return reportWrongUsage(
            "selection", CommandText::tr("selection takes no file; use 'quillbay text FILE'"));
    return openWindow(
        words.switches.contains("clipboard") ? SelectionName::Clipboard : SelectionName::Primary);
}
