// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &selectionPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "selection",
        .summary = QT_TRANSLATE_NOOP("Manual", "show the counts of the text selected in any application"),
        .usages = {"[--clipboard]"},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Opens a small window with the counts of the text that is selected in any application. "
            "Meant for a keyboard shortcut: errors are reported in a desktop notification as well as on "
            "standard error.")},
        .options = {{.name = "clipboard",
                        .text = QT_TRANSLATE_NOOP("Manual", "use the text that was copied last instead")},
            helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the window has opened")},
            {1, QT_TRANSLATE_NOOP("Manual", "the window could not be opened")}, {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-text(1)", "quillbay-watch(1)"},
    };
    return page;
}
