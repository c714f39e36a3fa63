// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &historyPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "history",
        .summary = QT_TRANSLATE_NOOP("Manual", "print what each day brought to a document"),
        .usages = {"[--csv|--json] FILE", "--forget FILE", "--keep on|off"},
        .description = {QT_TRANSLATE_NOOP("Manual",
                            "Prints for each day how many words FILE had at its end, by how many it changed, "
                            "and how many were added without those that were deleted. FILE is in the list of "
                            "'quillbay documents'."),
            QT_TRANSLATE_NOOP("Manual",
                "The counts of a document are kept once a minute at most, and once a day after a year.")},
        .completion = ShellCompletion::Files,
        .options = {{.name = "csv",
                        .text = QT_TRANSLATE_NOOP(
                            "Manual", "print all counts that are kept, separated by commas")},
            {.name = "json",
                .text = QT_TRANSLATE_NOOP("Manual", "print a JSON object for each count that is kept")},
            {.name = "forget", .text = QT_TRANSLATE_NOOP("Manual", "forget all counts but the last")},
            {.name = "keep",
                .placeholder = "on|off",
                .text = QT_TRANSLATE_NOOP(
                    "Manual", "keep the history of all documents, or only what the changes of the day need")},
            helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the history was printed or forgotten")},
            {1,
                QT_TRANSLATE_NOOP(
                    "Manual", "there is no history of FILE, or it cannot be read or forgotten")},
            {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-documents(1)", "quillbay-status(1)"},
    };
    return page;
}
