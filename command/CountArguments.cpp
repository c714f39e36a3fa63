// SPDX-License-Identifier: MIT
#include "command/CountArguments.h"

#include "command/CommandWords.h"

#include <getopt.h>

#include <cstdio>
#include <vector>

namespace {

enum Option { Help = 'h', Json = 0x100, Tsv, FilesFrom, ExplainRules, Service };

constexpr option options[] = {
    {"help", no_argument, nullptr, Help},
    {"json", no_argument, nullptr, Json},
    {"tsv", no_argument, nullptr, Tsv},
    {"files-from", required_argument, nullptr, FilesFrom},
    {"explain-rules", no_argument, nullptr, ExplainRules},
    {"service", no_argument, nullptr, Service},
    {},
};

std::nullopt_t wrongUsage(const char *message)
{
    if (message)
        std::fprintf(stderr, "quillbay: %s\n", message);
    std::fputs("Try 'quillbay count --help' for more.\n", stderr);
    return std::nullopt;
}

} // namespace

const char *CountArguments::helpText()
{
    return R"(Usage: quillbay count [--json | --tsv | --explain-rules] [--service]
                      [--files-from LIST] [FILE…]

Counts words, characters, sentences, lines on your paper, hard line breaks,
paragraphs and indented paragraphs of each FILE, under your preferences: plain
text, RTF, RTFD, web pages, Word documents and PDF files. Reads standard input
where FILE is - or where no file is named at all.

  --json             one JSON object a line for each file
  --tsv              tab-separated columns, the first line naming them
  --files-from LIST  count the files named in LIST too, behind those of the
                     command line; the names are separated by line ends, or by
                     NUL bytes if there is one; LIST may be - for standard input
  --explain-rules    print what the counts of the files rest on instead: locale,
                     preferences, paper, margins, and the fonts that the files
                     need (without a file, the font of plain text)
  --service          count in the counting service, in a process that may do
                     nothing else, as Quillbay's windows do; the counts are the
                     same
  -h, --help         show this and leave

The table counts together what is in several files; the other two forms have
no such row. Control characters of names are escaped: as \x1b in the table, as
\u001b in JSON; with --tsv as \t, \n, \r or byte by byte as \x1b, like bytes that
are no UTF-8, and a backslash as \\.

Exit status: 0 if all files were counted, 1 if any was not, 2 for wrong usage.
)";
}

std::optional<CountArguments> CountArguments::fromWords(int wordCount, char **words)
{
    // getopt_long() takes the first word for the program's name, which its messages begin with.
    char programName[] = "quillbay";
    std::vector<char *> argumentVector{programName};
    argumentVector.insert(argumentVector.end(), words, words + wordCount);
    argumentVector.push_back(nullptr);
    const int argumentCount = wordCount + 1;

    CountArguments arguments;
    const auto chooseForm = [&arguments](CountForm form) {
        const bool isOther = arguments.form != CountForm::Table && arguments.form != form;
        arguments.form = form;
        return !isOther;
    };
    opterr = 0;
    optind = 0; // begin anew, should the process have parsed other words before
    for (int word;
         (word = getopt_long(argumentCount, argumentVector.data(), ":h", options, nullptr)) != -1;) {
        switch (word) {
        case Help:
            arguments.wantsHelp = true;
            break;
        case Json:
        case Tsv:
            if (!chooseForm(word == Json ? CountForm::Json : CountForm::Tsv))
                return wrongUsage("--json and --tsv exclude each other");
            break;
        case FilesFrom:
            if (arguments.listName)
                return wrongUsage("--files-from can be given only once");
            arguments.listName = optarg;
            break;
        case ExplainRules:
            arguments.wantsRules = true;
            break;
        case Service:
            arguments.wantsService = true;
            break;
        default:
            reportWrongOption(word, argumentVector.data());
            return wrongUsage(nullptr);
        }
    }
    for (int i = optind; i < argumentCount; ++i)
        arguments.fileNames.append(argumentVector[static_cast<size_t>(i)]);

    if (arguments.wantsService && arguments.wantsRules)
        return wrongUsage("--service and --explain-rules exclude each other");
    if (arguments.listName == "-" && arguments.fileNames.contains("-"))
        return wrongUsage("standard input cannot be both a text and the list of files");
    if (!arguments.listName && arguments.fileNames.isEmpty() && !arguments.wantsRules)
        arguments.fileNames.append("-");
    return arguments;
}
