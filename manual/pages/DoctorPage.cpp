// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &doctorPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "doctor",
        .summary = QT_TRANSLATE_NOOP("Manual", "print what works on this desktop, and how to mend the rest"),
        .usages = {"[--json]"},
        .description =
            {QT_TRANSLATE_NOOP("Manual",
                 "Tries what Quillbay needs of this computer and of the desktop, and prints a line for each: "
                 "ok, note (worth knowing), limited or broken, the name of the check, what it has found, and "
                 "what to do about it. It starts the programs of Quillbay as the other commands do, opens no "
                 "window, and waits a few seconds at most for what does not answer."),
                QT_TRANSLATE_NOOP("Manual",
                    "The output names no document, and your home folder is ~ in it, so that you can paste it "
                    "into a report of a fault.")},
        .options =
            {{.name = "json",
                 .text = QT_TRANSLATE_NOOP("Manual",
                     "print a JSON object with the worst severity and a list of the findings: the name "
                     "of each check, its severity, the text and the remedy")},
                helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "everything works")},
            {1, QT_TRANSLATE_NOOP("Manual", "something is limited")}, {2, wrongUsageMeaning()},
            {3, QT_TRANSLATE_NOOP("Manual", "something is broken")}},
        .seeAlso = {"quillbay(1)"},
    };
    return page;
}
