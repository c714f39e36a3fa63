// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &documentsPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "documents",
        .summary = QT_TRANSLATE_NOOP("Manual", "list the documents that you keep an eye on"),
        .usages = {"[FILE…]", "--remove FILE…"},
        .description = {QT_TRANSLATE_NOOP("Manual",
                            "Adds each FILE to the list of documents, which the page Documents of the main "
                            "window shows, too. Without FILE, prints their paths."),
            QT_TRANSLATE_NOOP("Manual",
                "The counts of a listed document are kept after every save, so that 'quillbay status' knows "
                "what today brought, and 'quillbay history' each day. Nothing of its text is kept.")},
        .completion = ShellCompletion::Files,
        .options = {{.name = "remove",
                        .text = QT_TRANSLATE_NOOP(
                            "Manual", "remove each FILE from the list, and forget its goal and its history")},
            helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the list was printed or stored")},
            {1, QT_TRANSLATE_NOOP("Manual", "a file is missing, or the list cannot be read or stored")},
            {2, wrongUsageMeaning()}},
        .examples = {{"quillbay documents novel/*.odt",
            QT_TRANSLATE_NOOP("Manual", "keep an eye on all chapters of a novel")}},
        .seeAlso = {"quillbay-goal(1)", "quillbay-history(1)", "quillbay-status(1)"},
    };
    return page;
}
