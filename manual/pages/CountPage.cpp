// SPDX-License-Identifier: MIT
#include "manual/ManualPages.h"

const ManualPage &countPage()
{
    static const ManualPage page{
        .program = "quillbay",
        .command = "count",
        .summary = QT_TRANSLATE_NOOP("Manual", "print the counts of files or of standard input"),
        .usages = {"[--json | --tsv | --explain-rules] [--also COUNTS | --columns COUNTS] [--sort COUNT] "
                   "[--goal GOAL] [--recursive [--include GLOB]…] [--service] [--as-text] [--markdown] "
                   "[--latex] "
                   "[--count-as PROGRAM] [--hyphenated COUNT] [--urls COUNT] [--separators CHARACTERS] "
                   "[--files-from LIST] [FILE…]"},
        .description =
            {QT_TRANSLATE_NOOP("Manual",
                 "Counts the words, characters, sentences, lines on your paper, hard line breaks, paragraphs "
                 "and indented paragraphs of each FILE by your preferences. Without FILE, or if FILE is -, "
                 "reads standard input. A pipe that a shell passes by name is read in the same way."),
                QT_TRANSLATE_NOOP("Manual",
                    "FILE can be plain text, RTF, RTFD, a web page, a Word document, an OpenDocument text, "
                    "an "
                    "EPUB or a PDF file. A file that is no text, such as a picture, is reported and not "
                    "counted.")},
        .completion = ShellCompletion::Files,
        .options = {{.name = "json",
                        .text = QT_TRANSLATE_NOOP(
                            "Manual", "print a JSON object on a line of its own for each file")},
            {.name = "tsv",
                .text = QT_TRANSLATE_NOOP(
                    "Manual", "print tab-separated columns, with their names on the first line")},
            {.name = "also",
                .placeholder = "COUNTS",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "also print these counts, separated by commas: pages, standard-pages, reading-time, "
                    "speaking-time, graphemes; none prints none of them; without this option, those that "
                    "your preferences show")},
            {.name = "columns",
                .placeholder = "COUNTS",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "print only these counts, in this order, separated by commas: words, characters, "
                    "all-characters, sentences, lines, hard-line-breaks, paragraphs, indents, and those of "
                    "--also")},
            {.name = "sort",
                .placeholder = "COUNT",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "print the files with the largest COUNT first, such as words; or by name, with name")},
            {.name = "goal",
                .placeholder = "GOAL",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "compare all files together with a number of words, or with another count, such as '5000 "
                    "characters'; the table ends with what remains")},
            {.name = "recursive",
                .letter = 'r',
                .text = QT_TRANSLATE_NOOP("Manual",
                    "count the files below each FILE that is a folder, or below this folder, but not what a "
                    ".gitignore ignores, symbolic links, and what is no text")},
            {.name = "include",
                .placeholder = "GLOB",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "with --recursive, count only files with such a name, as '*.md'; can be given several "
                    "times")},
            {.name = "count-as",
                .placeholder = "PROGRAM",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "count words and characters as PROGRAM does: libreoffice (LibreOffice Writer), "
                    "word-processor (words between white space) or quillbay")},
            {.name = "hyphenated",
                .placeholder = "COUNT",
                .text =
                    QT_TRANSLATE_NOOP("Manual", "count a hyphenated word as one, or its parts as several")},
            {.name = "urls",
                .placeholder = "COUNT",
                .text = QT_TRANSLATE_NOOP("Manual", "count each web address as one word, or none")},
            {.name = "separators",
                .placeholder = "CHARACTERS",
                .text = QT_TRANSLATE_NOOP("Manual", "each of these characters ends a word, too")},
            {.name = "files-from",
                .placeholder = "LIST",
                .completion = ShellCompletion::Files,
                .text = QT_TRANSLATE_NOOP("Manual",
                    "also count the files named in LIST, after those of the command line; the names are "
                    "separated by line ends, or by NUL bytes if there are any; LIST may be - for "
                    "standard input")},
            {.name = "explain-rules",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "instead of the counts, print what they depend on: locale, preferences, paper, "
                    "margins, and the fonts that the files need (without a file, the font of plain "
                    "text); with --json an object, whose lengths are in points")},
            {.name = "service",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "count in the counting service, in a sandboxed process, as Quillbay's windows do; "
                    "the counts are the same; pages and graphemes are not counted there")},
            {.name = "as-text",
                .text = QT_TRANSLATE_NOOP("Manual",
                    "count every file as plain text, whatever it is: a web page with its markup, a "
                    "picture with its bytes")},
            markdownOption(), latexOption(), helpOption()},
        .notes = {QT_TRANSLATE_NOOP("Manual",
                      "For several files, the table ends with a row of totals; the other two formats have no "
                      "such "
                      "row."),
            QT_TRANSLATE_NOOP("Manual",
                "Pages are sheets of your paper, filled with the lines of the text between the top and "
                "bottom "
                "margins. Standard pages are the characters or words divided by the size that you prefer. "
                "Reading and speaking times follow from the words and your speeds; JSON and TSV have them in "
                "seconds. Graphemes are the characters that a reader sees, white space included."),
            QT_TRANSLATE_NOOP("Manual",
                "Control characters in names are escaped: as \\x1b in the table and as \\u001b in JSON. "
                "With --tsv, tabs, line feeds, carriage returns and backslashes become \\t, \\n, \\r and "
                "\\\\; other control characters and bytes that are not valid UTF-8 become one \\x1b per "
                "byte. In JSON, a name that is not valid UTF-8 has U+FFFD in place of such bytes, and the "
                "member \"url\" beside it has them percent-encoded, as a file: URL.")},
        .exitStatuses = {{0, QT_TRANSLATE_NOOP("Manual", "all files were counted")},
            {1, QT_TRANSLATE_NOOP("Manual", "a file could not be counted")}, {2, wrongUsageMeaning()},
            {3, QT_TRANSLATE_NOOP("Manual", "the goal has not been reached")}},
        .examples = {{"quillbay count *.txt",
                         QT_TRANSLATE_NOOP(
                             "Manual", "count the text files of this folder, with their total")},
            {"find . -name '*.odt' -print0 | quillbay count --files-from -",
                QT_TRANSLATE_NOOP(
                    "Manual", "count all OpenDocument texts below this folder, whatever their names are")},
            {"quillbay count --also pages,reading-time thesis.odt",
                QT_TRANSLATE_NOOP("Manual", "print the pages and the time to read it, too")},
            {"quillbay count --markdown *.md",
                QT_TRANSLATE_NOOP("Manual", "count the words that a reader of the pages sees")},
            {"quillbay count --json story.txt | jq .words",
                QT_TRANSLATE_NOOP("Manual", "print nothing but the number of words")}},
        .seeAlso = {"quillbay-explain(1)", "quillbay-preferences(1)", "wc(1)"},
    };
    return page;
}
