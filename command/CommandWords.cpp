// SPDX-License-Identifier: MIT
#include "command/CommandWords.h"

#include "command/FileNames.h"

#include <getopt.h>

#include <cstdio>
#include <vector>

std::optional<CommandWords> CommandWords::parse(
    const char *command, const QByteArrayList &known, int wordCount, char **words)
{
    // getopt_long() expects the program's name first.
    char programName[] = "quillbay";
    std::vector<char *> argumentVector{programName};
    argumentVector.insert(argumentVector.end(), words, words + wordCount);
    argumentVector.push_back(nullptr);

    std::vector<option> options{{"help", no_argument, nullptr, 'h'}};
    for (const QByteArray &name : known)
        options.push_back({name.constData(), no_argument, nullptr, 0x100});
    options.push_back({});

    CommandWords parsed;
    opterr = 0;
    optind = 0; // resets the state of an earlier call
    int index = 0;
    for (int word;
         (word = getopt_long(wordCount + 1, argumentVector.data(), "h", options.data(), &index)) != -1;) {
        if (word == '?') {
            reportWrongOption(word, argumentVector.data());
            reportWrongUsage(command, nullptr);
            return std::nullopt;
        }
        parsed.switches.append(word == 'h' ? "help" : options[static_cast<size_t>(index)].name);
    }
    for (int i = optind; i <= wordCount; ++i)
        parsed.operands.append(argumentVector[static_cast<size_t>(i)]);
    return parsed;
}

void reportWrongOption(int result, char *const *words)
{
    // In a group of letters such as -xyz, optopt has the letter, while optind only has the group.
    const bool isLetter = optopt > 0 && optopt < 0x80;
    const QByteArray word =
        isLetter ? '-' + QByteArray(1, static_cast<char>(optopt)) : QByteArray(words[optind - 1]);
    std::fprintf(stderr, "quillbay: %s '%s'\n",
        result == ':' ? "missing argument for option" : "invalid option", printableName(word).constData());
}

int reportWrongUsage(const char *command, const char *message)
{
    if (message)
        std::fprintf(stderr, "quillbay: %s\n", message);
    std::fprintf(stderr, "Try 'quillbay %s --help' for more.\n", command);
    return wrongUsageStatus;
}

void print(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
}

int printText(const char *text)
{
    std::fputs(text, stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}
