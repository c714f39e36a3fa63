// SPDX-License-Identifier: MIT
#include "command/SelectionCommand.h"

#include "command/CommandWords.h"
#include "command/ServiceCommand.h"
#include "platform/pasteboard/Selection.h"
#include "platform/services/PasteboardWire.h"

namespace {

constexpr char selectionHelp[] = R"(Usage: quillbay selection [--clipboard]

Opens a small window with the counts of the text that is selected in whatever
application. Made for a shortcut of the keyboard: what goes wrong is told in a
notification of the desktop as well as on standard error.

Some Wayland desktops show selections to X11 programs, such as this one, only
while one of those has the focus. There wl-paste is asked, if it is installed
(package wl-clipboard).

  --clipboard  the text that was copied last instead
  -h, --help   show this and leave

Exit status: 0 once the window is there, 1 if there is none, 2 for wrong usage.
)";

int openWindow(SelectionName name)
{
    constexpr FailureReport report = FailureReport::StandardErrorAndNotification;
    // Before anything that takes time: the user goes on working.
    const Result<Pasteboard, SelectionFailure> pasteboard =
        readSelection(name, SelectionContent::Text, PasteboardWire::maxPasteboardSize);
    if (!pasteboard)
        return tellFailure(causeText(pasteboard.error()), report);
    return deliverServiceMessage(QStringLiteral("wordCountSelectedTextService"), pasteboard.value(), report);
}

} // namespace

int runSelectionCommand(int wordCount, char **words)
{
    const std::optional<CommandWords> wanted =
        CommandWords::parse("selection", {"clipboard"}, wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printed(selectionHelp);
    if (!wanted->operands.isEmpty())
        return tellWrongUsage("selection", "it takes no file; 'quillbay text FILE' does");
    return openWindow(
        wanted->switches.contains("clipboard") ? SelectionName::Clipboard : SelectionName::Primary);
}
