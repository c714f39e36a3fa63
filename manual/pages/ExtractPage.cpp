// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &extractPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "extract",
        .summary = QT_TRANSLATE_NOOP("Manual", "print the text of files, as it is counted"),
        .usages = {"[--json] [--as-text] [--markdown] [--latex] [FILE…]"},
        .description =
            {QT_TRANSLATE_NOOP("Manual",
                 "Prints the text of each FILE that 'quillbay count' counts, in UTF-8: without markup, "
                 "headers and hidden text, with the notes behind the body. Without FILE, or if FILE is -, "
                 "reads standard input. FILE can be of every kind that 'quillbay count' counts."),
                QT_TRANSLATE_NOOP("Manual",
                    "Nothing is added between the files. Pictures and other attachments are the character "
                    "U+FFFC, which is counted. On a terminal, control characters other than tabs and line "
                    "ends are escaped, as \\x1b; elsewhere they are printed as they are.")},
        .completion = ShellCompletion::Files,
        .options =
            {{.name = "json",
                 .text = QT_TRANSLATE_NOOP("Manual",
                     "print a JSON object on a line of its own for each file: its name, its MIME type, the "
                     "text, the length of the text in UTF-16 code units, and the paragraphs; each has its "
                     "offset and its length without the line end, in UTF-16 code units and in bytes of "
                     "UTF-8, and its counts, which add up to those of 'quillbay count'")},
                {.name = "as-text",
                    .text = QT_TRANSLATE_NOOP("Manual", "read every file as plain text, whatever it is")},
                markdownOption(), latexOption(), helpOption()},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "all files were printed")},
            {1, QT_TRANSLATE_NOOP("Manual", "a file could not be printed")}, {2, wrongUsageMeaning()}},
        .examples = {{"quillbay extract thesis.docx | wc --words",
            QT_TRANSLATE_NOOP("Manual", "count the words of a Word document as another program does")}},
        .seeAlso = {"quillbay-count(1)", "quillbay-explain(1)"},
    };
    return page;
}
