// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &preferencesPage()
{
    static const char *const onOrOff = QT_TRANSLATE_NOOP("Manual", "on or off");
    static const char *const margin = QT_TRANSLATE_NOOP("Manual",
        "such as 1in, 25.4mm, 2.5cm or 72pt, at most so wide that a column of half an inch is left");
    static const char *const wordsPerMinute = QT_TRANSLATE_NOOP("Manual", "20 to 2000 words per minute");
    static const std::vector<const char *> switchValues{"on", "off"};
    static const ManualPage page{
        .program = "quillbay",
        .command = "preferences",
        .summary = QT_TRANSLATE_NOOP("Manual", "print and set the rules of the counts"),
        .usages = {"[--json] [NAME]", "NAME VALUE", "--reset NAME…", "--reset-all"},
        .description = {QT_TRANSLATE_NOOP("Manual",
            "Prints the rules of the counts, or the one called NAME; sets NAME to VALUE; or gives rules the "
            "values of a new user. Open windows show what you want at once; their numbers follow at the next "
            "count.")},
        .termsTitle = QT_TRANSLATE_NOOP("Manual", "Names:"),
        .terms = {{"show-characters",
                      QT_TRANSLATE_NOOP("Manual", "on or off: show the characters; also sets the next one"),
                      switchValues},
            {"show-characters-with-whitespace", onOrOff, switchValues},
            {"show-sentences", onOrOff, switchValues}, {"show-lines", onOrOff, switchValues},
            {"show-hard-line-breaks", onOrOff, switchValues}, {"show-paragraphs", onOrOff, switchValues},
            {"show-indented-paragraphs", onOrOff, switchValues},
            {"minimum-sentences",
                QT_TRANSLATE_NOOP("Manual", "0 to 1000: paragraphs with fewer sentences are not counted")},
            {"terminal-punctuation",
                QT_TRANSLATE_NOOP("Manual",
                    "on or off: count only sentences that end in a full stop, question mark or exclamation "
                    "mark"),
                switchValues},
            {"speak-word-count",
                QT_TRANSLATE_NOOP(
                    "Manual", "on or off: speak the words of a watched file when their number changes"),
                switchValues},
            {"paper", QT_TRANSLATE_NOOP("Manual", "a paper of your printer, such as A4 or Letter"),
                {"A4", "Letter"}},
            {"left-margin", margin}, {"right-margin", margin}, {"top-margin", margin},
            {"bottom-margin", margin}, {"show-pages", onOrOff, switchValues},
            {"show-standard-pages", onOrOff, switchValues}, {"show-reading-time", onOrOff, switchValues},
            {"show-speaking-time", onOrOff, switchValues}, {"show-graphemes", onOrOff, switchValues},
            {"standard-page",
                QT_TRANSLATE_NOOP("Manual", "such as '1800 characters' or '250 words'; white space counts"),
                {"1500", "1800", "2400", "250words", "300words"}},
            {"reading-speed", wordsPerMinute}, {"speaking-speed", wordsPerMinute}},
        .termsOption = "reset",
        .completion = ShellCompletion::Terms,
        .options = {{.name = "json",
                        .text = QT_TRANSLATE_NOOP("Manual", "print a JSON object; margins are in inches")},
            {.name = "reset", .text = QT_TRANSLATE_NOOP("Manual", "reset the rules that are named")},
            {.name = "reset-all", .text = QT_TRANSLATE_NOOP("Manual", "reset all rules")}, helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "the rules were printed or stored")},
            {1, QT_TRANSLATE_NOOP("Manual", "a rule could not be stored")}, {2, wrongUsageMeaning()}},
        .examples = {{"quillbay preferences minimum-sentences 2",
                         QT_TRANSLATE_NOOP("Manual", "do not count headings as paragraphs")},
            {"quillbay preferences --reset left-margin right-margin",
                QT_TRANSLATE_NOOP("Manual", "use the default margins again")}},
        .seeAlso = {"quillbay-count(1)", "quillbay-desk(1)"},
    };
    return page;
}
