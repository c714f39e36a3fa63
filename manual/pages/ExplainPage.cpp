// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &explainPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "explain",
        .summary = QT_TRANSLATE_NOOP("Manual", "print what counts in files, what does not, and why"),
        .usages = {"[--words] [--sentences] [--paragraphs] [--indents] [--lines] [--hard-line-breaks] "
                   "[--characters] [--all-characters] [--not-counted] [--json] [--as-text] [--markdown] "
                   "[--latex] [FILE…]"},
        .description =
            {QT_TRANSLATE_NOOP("Manual",
                 "Prints the counts of each FILE as 'quillbay count' does, and why they are what they are. "
                 "Without FILE, or if FILE is -, reads standard input. FILE can be of every kind that "
                 "'quillbay count' counts."),
                QT_TRANSLATE_NOOP("Manual",
                    "Without options, prints each count with what was not counted and why. With the name of "
                    "a "
                    "count, prints the whole text, with what counted in [square brackets] and what did not "
                    "in {curly ones}. Several counts are explained one after another.")},
        .completion = ShellCompletion::Files,
        .options = {{.name = "words", .text = QT_TRANSLATE_NOOP("Manual", "explain the words")},
            {.name = "sentences", .text = QT_TRANSLATE_NOOP("Manual", "explain the sentences")},
            {.name = "paragraphs", .text = QT_TRANSLATE_NOOP("Manual", "explain the paragraphs")},
            {.name = "indents", .text = QT_TRANSLATE_NOOP("Manual", "explain the indented paragraphs")},
            {.name = "lines", .text = QT_TRANSLATE_NOOP("Manual", "explain the lines on your paper")},
            {.name = "hard-line-breaks", .text = QT_TRANSLATE_NOOP("Manual", "explain the hard line breaks")},
            {.name = "characters",
                .text = QT_TRANSLATE_NOOP("Manual", "explain the characters without white space")},
            {.name = "all-characters",
                .text = QT_TRANSLATE_NOOP("Manual", "explain the characters including white space")},
            {.name = "not-counted",
                .text =
                    QT_TRANSLATE_NOOP("Manual", "print only what was not counted, with the text around it")},
            {.name = "json",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "print a JSON object on a line of its own for each word, sentence and so on (of all "
                    "counts, or of those that are named): the file, the kind of the count, the offset "
                    "and length in UTF-16 code units, whether it was counted, the reason as a fixed "
                    "identifier, and the text, of which at most 200 code units; a line as of 'quillbay "
                    "count --json' follows")},
            {.name = "as-text",
                .text = QT_TRANSLATE_NOOP("Manual", "read every file as plain text, whatever it is")},
            markdownOption(), latexOption(), helpOption()},
        .notes = {QT_TRANSLATE_NOOP("Manual",
            "'quillbay count --explain-rules' prints the rules themselves: your preferences and your "
            "locale.")},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "all files were explained")},
            {1, QT_TRANSLATE_NOOP("Manual", "a file could not be explained")}, {2, wrongUsageMeaning()}},
        .examples = {{"quillbay explain --sentences --not-counted story.txt",
            QT_TRANSLATE_NOOP("Manual", "find the headings that are not counted as sentences")}},
        .seeAlso = {"quillbay-count(1)", "quillbay-extract(1)", "quillbay-desk(1)"},
    };
    return page;
}
