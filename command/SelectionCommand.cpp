// SPDX-License-Identifier: MIT
// "quillbay selection": opens a window with the counts of the text that is selected in any application.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/ServiceCommand.h"
#include "platform/pasteboard/Selection.h"
#include "platform/services/PasteboardWire.h"

namespace {

constexpr char selectionHelp[] = R"(Usage: quillbay selection [--clipboard]

Opens a small window with the counts of the text that is selected in any
application. Meant for a keyboard shortcut: errors are reported in a desktop
notification as well as on standard error.

Some Wayland desktops pass selections to X11 programs, such as this one, only
while an X11 program has the focus. On those, wl-paste is used if it is installed
(package wl-clipboard).

  --clipboard  use the text that was copied last instead
  -h, --help   print this help and exit

Exit status: 0 if the window has opened, 1 if not, 2 after wrong usage.
)";

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
    const std::optional<CommandWords> wanted =
        CommandWords::parse("selection", {"clipboard"}, wordCount, words);
    if (!wanted)
        return wrongUsageStatus;
    if (wanted->wantsHelp())
        return printText(selectionHelp);
    if (!wanted->operands.isEmpty())
        return reportWrongUsage("selection", "selection takes no file; use 'quillbay text FILE'");
    return openWindow(
        wanted->switches.contains("clipboard") ? SelectionName::Clipboard : SelectionName::Primary);
}
