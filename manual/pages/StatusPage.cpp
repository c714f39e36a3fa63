// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &statusPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "status",
        .summary = QT_TRANSLATE_NOOP("Manual", "print your documents, what today brought, and their goals"),
        .usages = {"[--json]"},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Prints the words of each document in the list of 'quillbay documents', by how many they have "
            "changed since midnight, and what its goal still needs. Counts what was saved since the last "
            "time; what has not changed is not read.")},
        .options = {{.name = "json",
                        .text = QT_TRANSLATE_NOOP(
                            "Manual", "print a JSON object with all statistics, for panels and scripts")},
            helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "all documents were counted")},
            {1, QT_TRANSLATE_NOOP("Manual", "a document could not be counted")}, {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-documents(1)", "quillbay-goal(1)", "quillbay-history(1)"},
    };
    return page;
}
