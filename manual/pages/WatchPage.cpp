// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &watchPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "watch",
        .summary = QT_TRANSLATE_NOOP("Manual", "show the counts of files, and update them at every save"),
        .usages = {"FILE…", "--clipboard"},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Opens a small window for each FILE, whose counts follow every save, or raises the window that "
            "FILE already has. Watches every kind of file that 'quillbay count' counts; the others are "
            "reported on standard error and in a desktop notification, and skipped.")},
        .completion = ShellCompletion::Files,
        .options = {{.name = "clipboard",
                        .text = QT_TRANSLATE_NOOP(
                            "Manual", "watch the files that were copied last in a file manager")},
            helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the windows have opened")},
            {1, QT_TRANSLATE_NOOP("Manual", "a file cannot be watched")}, {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-count(1)", "quillbay-text(1)"},
    };
    return page;
}
