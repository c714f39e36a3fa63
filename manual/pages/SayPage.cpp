// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &sayPage()
{
    static const ManualPage page{
        .program = "quillbay-say",
        .summary = QT_TRANSLATE_NOOP("Manual", "speak a phrase"),
        .usages = {"PHRASE"},
        .description =
            {QT_TRANSLATE_NOOP("Manual",
                 "Speaks PHRASE, which is one argument, through the speech dispatcher of the user, or "
                 "through "
                 "espeak-ng if there is none. It exits when the dispatcher has accepted the phrase, or when "
                 "espeak-ng has spoken it."),
                QT_TRANSLATE_NOOP("Manual",
                    "Quillbay speaks the number of words of a watched file through /usr/bin/say. Quillbay's "
                    "package makes that name an alternative for this program, unless another package owns "
                    "it.")},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the phrase is spoken")},
            {1, QT_TRANSLATE_NOOP("Manual", "neither of the two programs could speak it")},
            {2, wrongUsageMeaning()}},
        .seeAlso = {"quillbay-preferences(1)", "spd-say(1)", "espeak-ng(1)", "update-alternatives(1)"},
    };
    return page;
}
