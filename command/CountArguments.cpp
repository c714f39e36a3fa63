// SPDX-License-Identifier: MIT
#include "command/CountArguments.h"

#include "command/CommandWords.h"

#include <getopt.h>

#include <cstdio>
#include <vector>

namespace {

// Above the letters of the short options.
enum Option {
    Help = 'h',
    Json = 256,
    Tsv = 257,
    FilesFrom = 258,
    ExplainRules = 259,
    Service = 260,
    AsText = 261
};

constexpr option options[] = {
    {"help", no_argument, nullptr, Help},
    {"json", no_argument, nullptr, Json},
    {"tsv", no_argument, nullptr, Tsv},
    {"files-from", required_argument, nullptr, FilesFrom},
    {"explain-rules", no_argument, nullptr, ExplainRules},
    {"service", no_argument, nullptr, Service},
    {"as-text", no_argument, nullptr, AsText},
    {},
};

std::nullopt_t wrongUsage(const char *message)
{
    reportWrongUsage("count", message);
    return std::nullopt;
}

} // namespace

const char *CountArguments::helpText()
{
    return R"(Usage: quillbay count [--json | --tsv | --explain-rules] [--service]
                      [--as-text] [--files-from LIST] [FILE…]

Counts the words, characters, sentences, lines on your paper, hard line breaks,
paragraphs and indented paragraphs of each FILE by your preferences. FILE can be
plain text, RTF, RTFD, a web page, a Word document, an OpenDocument text, an EPUB
or a PDF file. A file that is no text, such as a picture, is reported and not
counted. Without FILE, or if FILE is -, reads standard input.

  --json             print a JSON object on a line of its own for each file
  --tsv              print tab-separated columns, with their names on the first
                     line
  --files-from LIST  also count the files named in LIST, after those of the
                     command line; the names are separated by line ends, or by
                     NUL bytes if there are any; LIST may be - for standard input
  --explain-rules    instead of the counts, print what they depend on: locale,
                     preferences, paper, margins, and the fonts that the files
                     need (without a file, the font of plain text)
  --service          count in the counting service, in a sandboxed process, as
                     Quillbay's windows do; the counts are the same
  --as-text          count every file as plain text, whatever it is: a web page with
                     its markup, a picture with its bytes
  -h, --help         print this help and exit

For several files, the table ends with a row of totals; the other two formats
have no such row. Control characters in names are escaped: as \x1b in the table
and as \u001b in JSON. With --tsv, tabs, line feeds, carriage returns and
backslashes become \t, \n, \r and \\; other control characters and bytes that
are not valid UTF-8 become one \x1b per byte.

Exit status: 0 if all files were counted, 1 if any was not, 2 after wrong usage.
)";
}

std::optional<CountArguments> CountArguments::fromWords(int wordCount, char **words)
{
    // getopt_long() expects the program's name first.
    char programName[] = "quillbay";
    std::vector<char *> argumentVector{programName};
    argumentVector.insert(argumentVector.end(), words, words + wordCount);
    argumentVector.push_back(nullptr);
    const int argumentCount = wordCount + 1;

    CountArguments arguments;
    const auto chooseFormat = [&arguments](CountFormat format) {
        const bool isOther = arguments.format != CountFormat::Table && arguments.format != format;
        arguments.format = format;
        return !isOther;
    };
    opterr = 0;
    optind = 0; // resets the state of an earlier call
    for (int word;
         (word = getopt_long(argumentCount, argumentVector.data(), ":h", options, nullptr)) != -1;) {
        switch (word) {
        case Help:
            arguments.wantsHelp = true;
            break;
        case Json:
        case Tsv:
            if (!chooseFormat(word == Json ? CountFormat::Json : CountFormat::Tsv))
                return wrongUsage("--json and --tsv cannot be combined");
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
        case AsText:
            arguments.readAs = ReadAs::Text;
            break;
        default:
            reportWrongOption(word, argumentVector.data());
            return wrongUsage(nullptr);
        }
    }
    for (int i = optind; i < argumentCount; ++i)
        arguments.fileNames.append(argumentVector[static_cast<size_t>(i)]);

    if (arguments.wantsService && arguments.wantsRules)
        return wrongUsage("--service and --explain-rules cannot be combined");
    if (arguments.listName == "-" && arguments.fileNames.contains("-"))
        return wrongUsage("standard input cannot be both a document and the list of files");
    if (!arguments.listName && arguments.fileNames.isEmpty() && !arguments.wantsRules)
        arguments.fileNames.append("-");
    return arguments;
}
