// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &quillbayPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .summary = QT_TRANSLATE_NOOP("Manual", "count text for people who write"),
        .usages = {"COMMAND …", "help [COMMAND]"},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Counts words, characters, sentences, lines on your paper and paragraphs by your own rules: in "
            "a terminal, or in a small window that follows a file through every save.")},
        .termsTitle = QT_TRANSLATE_NOOP("Manual", "Commands:"),
        .terms = {{"count", countPage().summary}, {"doctor", doctorPage().summary},
            {"documents", documentsPage().summary}, {"explain", explainPage().summary},
            {"extract", extractPage().summary}, {"goal", goalPage().summary},
            {"history", historyPage().summary}, {"preferences", preferencesPage().summary},
            {"selection", selectionPage().summary}, {"status", statusPage().summary},
            {"text", textPage().summary}, {"watch", watchPage().summary},
            {"help", QT_TRANSLATE_NOOP("Manual", "print the help of a command and exit")}},
        .completion = ShellCompletion::Commands,
        .options = {helpOption(), versionOption()},
        .notes = {QT_TRANSLATE_NOOP(
            "Manual", "Run 'quillbay help COMMAND' or 'man quillbay-COMMAND' for the options of a command.")},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "everything was done")},
            {1, QT_TRANSLATE_NOOP("Manual", "something was not done, and is reported on standard error")},
            {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-desk(1)"},
    };
    return page;
}
