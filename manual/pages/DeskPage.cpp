// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &deskPage()
{
    static const ManualPage page{
        .program = "quillbay-desk",
        .summary = QT_TRANSLATE_NOOP("Manual", "set the rules of the counts in a window"),
        .usages = {"[FILE]", "--watch [FILE…]"},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Opens Quillbay's main window, in which you set the rules of the counts. If it is open already, "
            "it comes to the front. With FILE, it shows why the counts of that text are what they are.")},
        .completion = ShellCompletion::Files,
        .options =
            {{.name = "watch",
                 .text = QT_TRANSLATE_NOOP("Manual",
                     "watch the files as 'quillbay watch' does; without FILE, choose them in a dialog")},
                helpOption(), versionOption()},
        .exitStatuses = {{0,
                             QT_TRANSLATE_NOOP(
                                 "Manual", "the window was closed, or another process shows it")},
            {1, QT_TRANSLATE_NOOP("Manual", "the window could not be shown")}, {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay(1)", "quillbay-explain(1)", "quillbay-preferences(1)"},
    };
    return page;
}
