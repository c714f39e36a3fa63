// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &textPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "text",
        .summary = QT_TRANSLATE_NOOP("Manual", "show the counts of files or of standard input"),
        .usages = {"[FILE…]"},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Opens a small window with the counts of each FILE. Without FILE, or if FILE is -, reads "
            "standard "
            "input. FILE can be of every kind that 'quillbay count' counts, or the URL of a file on this "
            "computer. Files that cannot be counted are reported and skipped, in a desktop notification "
            "too.")},
        .completion = ShellCompletion::Files,
        .options = {helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "all windows have opened")},
            {1, QT_TRANSLATE_NOOP("Manual", "a window could not be opened")}, {2, wrongUsageMeaning()}},
        .examples = {{"git diff | quillbay text",
            QT_TRANSLATE_NOOP("Manual", "show the counts of what another program prints")}},
        .seeAlso = {"quillbay-selection(1)", "quillbay-watch(1)"},
    };
    return page;
}
