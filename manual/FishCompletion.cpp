// SPDX-License-Identifier: MIT
#include "manual/Completions.h"

namespace {

constexpr char fishQuote[] = "\\'";

QByteArray quotedForFish(const QByteArray &text)
{
    return quotedForShell(QByteArray(text).replace('\\', "\\\\"), fishQuote);
}

/// start: "complete -c PROGRAM" with its condition.
QByteArray completeOptions(const QByteArray &start, const ManualPage &page)
{
    QByteArray text;
    for (const ManualOption &option : page.options) {
        text += start + " -l " + option.name;
        if (option.letter)
            text += QByteArray(" -s ") + option.letter;
        if (option.placeholder)
            text += option.completion == ShellCompletion::Files ? " -r -F" : " -x";
        text += " -d " + quotedForFish(firstClause(option.text)) + '\n';
    }
    return text;
}

QByteArray completeTerms(const QByteArray &start, const ManualPage &page)
{
    QByteArray text;
    for (const ManualTerm &term : page.terms)
        text += start + " -a " + term.name + " -d " + quotedForFish(firstClause(term.text)) + '\n';
    return text;
}

/// start: without its condition.
QByteArray completeTermsAndValues(const QByteArray &start, const ManualPage &page)
{
    const QByteArray isCommand = QByteArray("__quillbay_command_is ") + page.command;
    const QByteArray takesTerms = QByteArray("__quillbay_seen --") + page.termsOption;
    QByteArray text;
    QByteArrayList withValues;
    for (const auto &[values, names] : termsByValues(page)) {
        text += start + " -n '" + isCommand + "; and not " + takesTerms + "; and __quillbay_previous "
            + names.join(' ') + "' -a '" + values + "'\n";
        withValues += names;
    }
    return text
        + completeTerms(start + " -n '" + isCommand + "; and begin; " + takesTerms
                + "; or not __quillbay_previous " + withValues.join(' ') + "; end'",
            page);
}

constexpr char conditions[] = R"(function __quillbay_command_is
    set -l words (commandline -opc)
    test "$words[2]" = $argv[1]
end
function __quillbay_needs_command
    test (count (commandline -opc)) -eq 1
end
function __quillbay_previous
    set -l words (commandline -opc)
    contains -- $words[-1] $argv
end
function __quillbay_seen
    contains -- $argv[1] (commandline -opc)
end
)";

} // namespace

QByteArray fishCompletion(const CompletedProgram &program)
{
    const QByteArray start = QByteArray("complete -c ") + program.page.program;
    QByteArray text = QByteArray("# SPDX-License-Identifier: MIT\n# Completes the arguments of ")
        + program.page.program + " in fish.\n";
    if (program.commands.empty()) {
        const bool takesFiles = program.page.completion == ShellCompletion::Files;
        return text + start + (takesFiles ? " -F\n" : " -f\n") + completeOptions(start, program.page);
    }
    text += conditions + start + " -f\n";
    const QByteArray first = start + " -n __quillbay_needs_command";
    text += completeTerms(first, program.page) + completeOptions(first, program.page);
    for (const ManualPage *const command : program.commands) {
        const QByteArray condition = start + " -n '__quillbay_command_is " + command->command + '\'';
        text += completeOptions(condition, *command);
        if (command->completion == ShellCompletion::Files)
            text += condition + " -F\n";
        else if (command->completion == ShellCompletion::Terms)
            text += completeTermsAndValues(start, *command);
    }
    return text + completeTerms(start + " -n '__quillbay_command_is help'", program.page);
}
