// SPDX-License-Identifier: MIT
#include "command/CommandWords.h"

#include "command/FileNames.h"

#include <getopt.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

/// What getopt_long() returns for the first option of a page; above all letters.
constexpr int firstOption = 0x100;

struct OptionTable {
    std::vector<option> names; ///< refer to the page
    QByteArray letters = ":"; ///< a missing argument is told apart from an unknown option
};

OptionTable optionTable(const ManualPage &page)
{
    OptionTable table;
    for (const ManualOption &row : page.options) {
        const int hasArgument = row.placeholder ? required_argument : no_argument;
        table.names.push_back(
            {row.name, hasArgument, nullptr, firstOption + static_cast<int>(table.names.size())});
        if (row.letter) {
            table.letters += row.letter;
            table.letters += row.placeholder ? ":" : "";
        }
    }
    table.names.push_back({});
    return table;
}

const ManualOption &optionFor(const ManualPage &page, int result)
{
    if (result >= firstOption)
        return page.options.at(static_cast<size_t>(result - firstOption));
    return *std::find_if(page.options.begin(), page.options.end(),
        [result](const ManualOption &row) { return row.letter == result; });
}

// getopt_long() must not report errors itself: it prints words as they are, even with control characters for
// the terminal.
QString wrongOption(int result, char *const *words)
{
    // In a group of letters such as -xyz, optopt has the letter, while optind only has the group.
    const bool isLetter = optopt > 0 && optopt < 0x80;
    const QByteArray word =
        isLetter ? '-' + QByteArray(1, static_cast<char>(optopt)) : QByteArray(words[optind - 1]);
    const QString text = result == ':' ? CommandText::tr("missing argument for option '%1'")
                                       : CommandText::tr("invalid option '%1'");
    return text.arg(QString::fromUtf8(printableName(word)));
}

} // namespace

std::optional<CommandWords> CommandWords::parse(const ManualPage &page, int wordCount, char **words)
{
    // getopt_long() expects the program's name first.
    char programName[] = "quillbay";
    std::vector<char *> argumentVector{programName};
    argumentVector.insert(argumentVector.end(), words, words + wordCount);
    argumentVector.push_back(nullptr);

    const OptionTable table = optionTable(page);
    CommandWords parsed;
    opterr = 0;
    optind = 0; // resets the state of an earlier call
    for (int result; (result = getopt_long(wordCount + 1, argumentVector.data(), table.letters.constData(),
                          table.names.data(), nullptr))
         != -1;) {
        if (result == '?' || result == ':') {
            reportWrongUsage(page.command, wrongOption(result, argumentVector.data()));
            return std::nullopt;
        }
        const ManualOption &given = optionFor(page, result);
        parsed.switches.append(given.name);
        parsed.values.append(QByteArray(given.placeholder ? optarg : ""));
    }
    for (int i = optind; i <= wordCount; ++i)
        parsed.operands.append(argumentVector[static_cast<size_t>(i)]);
    return parsed;
}

std::optional<QByteArray> CommandWords::valueOf(const QByteArray &name) const
{
    const qsizetype index = switches.indexOf(name);
    return index < 0 ? std::nullopt : std::optional(values.at(index));
}

QByteArrayList CommandWords::valuesOf(const QByteArray &name) const
{
    QByteArrayList found;
    for (qsizetype i = 0; i < switches.size(); ++i) {
        if (switches[i] == name)
            found.append(values[i]);
    }
    return found;
}

int reportWrongUsage(const char *command, const QString &message)
{
    const QString name =
        command ? QStringLiteral("quillbay ") + QLatin1String(command) : QStringLiteral("quillbay");
    reportError(message);
    const QString hint = CommandText::tr("Try '%1 --help' for more.").arg(name);
    std::fprintf(stderr, "%s\n", hint.toUtf8().constData());
    return wrongUsageStatus;
}

void reportError(const QString &message)
{
    // Keeps the order where both streams go to the same terminal or file.
    std::fflush(stdout);
    std::fprintf(stderr, "quillbay: %s\n", message.toUtf8().constData());
}
