// SPDX-License-Identifier: MIT
// "quillbay selection": opens a window with the counts of the text that is selected in any application.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/ServiceCommand.h"
#include "manual/HelpText.h"
#include "manual/ManualPages.h"
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

int runSelectionCommand(int wordCount, char **words)
{
    const std::optional<CommandWords> wanted = CommandWords::parse(selectionPage(), wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printText(helpText(selectionPage()));
    if (!wanted->operands.isEmpty())
        return reportWrongUsage(
            "selection", CommandText::tr("selection takes no file; use 'quillbay text FILE'"));
    return openWindow(
        wanted->switches.contains("clipboard") ? SelectionName::Clipboard : SelectionName::Primary);
}
