// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &goalPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "goal",
        .summary = QT_TRANSLATE_NOOP("Manual", "set a goal or a limit for a document or a folder"),
        .usages = {"FILE", "[--of STATISTIC] [--by DATE] FILE NUMBER",
            "--day [--added-only] [--of STATISTIC] FILE NUMBER", "--limit [--of STATISTIC] FILE NUMBER",
            "--remove [--limit] FILE"},
        .description = {QT_TRANSLATE_NOOP("Manual",
                            "Sets the goal of FILE to NUMBER words, in all or for each day; or the limit, "
                            "which is reported when it is passed. Without NUMBER, prints both. A folder has "
                            "the documents of the list that are directly in it."),
            QT_TRANSLATE_NOOP("Manual",
                "What is deleted counts against the goal for a day. With --added-only it does not: what is "
                "added between two saves counts, and what is deleted is left aside.")},
        .completion = ShellCompletion::Files,
        .options = {{.name = "of",
                        .placeholder = "STATISTIC",
                        .text = QT_TRANSLATE_NOOP(
                            "Manual", "count words (the default), characters, all-characters or lines")},
            {.name = "by",
                .placeholder = "DATE",
                .text = QT_TRANSLATE_NOOP("Manual", "reach the goal until DATE, such as 2026-11-30")},
            {.name = "day", .text = QT_TRANSLATE_NOOP("Manual", "the goal is for each day, from midnight")},
            {.name = "added-only", .text = QT_TRANSLATE_NOOP("Manual", "do not subtract what is deleted")},
            {.name = "limit", .text = QT_TRANSLATE_NOOP("Manual", "set or remove the limit")},
            {.name = "remove", .text = QT_TRANSLATE_NOOP("Manual", "remove the goal or the limit")},
            helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the goal was printed or stored")},
            {1, QT_TRANSLATE_NOOP("Manual", "the goal cannot be read or stored")}, {2, wrongUsageMeaning()}},
        .examples = {{"quillbay goal --by 2026-11-30 novel 50000",
                         QT_TRANSLATE_NOOP("Manual", "write 50,000 words in a folder until 30 November")},
            {"quillbay goal --limit --of all-characters abstract.odt 5000",
                QT_TRANSLATE_NOOP("Manual", "be told when an abstract has more than 5,000 characters")}},
        .seeAlso = {"quillbay-documents(1)", "quillbay-status(1)"},
    };
    return page;
}
