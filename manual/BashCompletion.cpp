// SPDX-License-Identifier: MIT
#include "manual/Completions.h"

namespace {

constexpr char bashQuote[] = "'\\''";

QByteArray indented(const QByteArray &lines, const QByteArray &indent)
{
    QByteArray text;
    for (const QByteArray &line : lines.split('\n'))
        text += line.isEmpty() ? QByteArray() : indent + line + '\n';
    return text;
}

QByteArray offerWords(const QByteArrayList &words)
{
    return "mapfile -t COMPREPLY < <(compgen -W " + quotedForShell(words.join(' '), bashQuote)
        + " -- \"$current\")\n";
}

constexpr char offerFiles[] = "compopt -o default 2>/dev/null\n";

QByteArrayList optionWords(const ManualPage &page)
{
    QByteArrayList words;
    for (const ManualOption &option : page.options) {
        words.append(QByteArray("--") + option.name);
        if (option.letter)
            words.append('-' + QByteArray(1, option.letter));
    }
    return words;
}

QByteArray offerTerms(const ManualPage &page)
{
    QByteArray lines =
        QByteArray("if [[ \" ${COMP_WORDS[*]} \" != *' --") + page.termsOption + " '* ]]; then\n";
    lines += "    case $previous in\n";
    for (const auto &[values, names] : termsByValues(page)) {
        lines += "    " + names.join(" | ") + ")\n        " + offerWords(values.split(' '))
            + "        return\n        ;;\n";
    }
    return lines + "    esac\nfi\n" + offerWords(termNames(page));
}

QByteArray offerOperands(const ManualPage &page)
{
    switch (page.completion) {
    case ShellCompletion::Files:
        return offerFiles;
    case ShellCompletion::Terms:
        return offerTerms(page);
    case ShellCompletion::Commands:
        return offerWords(termNames(page));
    case ShellCompletion::Nothing:
        break;
    }
    return ":\n";
}

/// The lines that complete a word behind the name of the page.
QByteArray completionOf(const ManualPage &page)
{
    QByteArray lines;
    for (const ManualOption &option : page.options) {
        if (option.placeholder) {
            lines += QByteArray("if [[ $previous == --") + option.name + " ]]; then\n    "
                + (option.completion == ShellCompletion::Files ? offerFiles : ":\n") + "    return\nfi\n";
        }
    }
    lines += "if [[ $current == -* && -z $operandsOnly ]]; then\n    " + offerWords(optionWords(page));
    return lines + "else\n" + indented(offerOperands(page), "    ") + "fi\n";
}

} // namespace

QByteArray bashCompletion(const CompletedProgram &program)
{
    const QByteArray name = functionName(program.page);
    QByteArray text = "# SPDX-License-Identifier: MIT\n# Completes the arguments of "
        + QByteArray(program.page.program) + " in bash.\n" + name + R"(() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} operandsOnly= word
    # Readline makes the equals sign a word of its own.
    if [[ $current == '=' ]]; then
        current=
    elif [[ $previous == '=' ]]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    for word in "${COMP_WORDS[@]:1:COMP_CWORD - 1}"; do
        [[ $word == -- ]] && operandsOnly=yes
    done
    COMPREPLY=()
    # Only where a file is expected.
    compopt +o default 2>/dev/null
)";
    if (!program.commands.empty()) {
        text += "    if [[ $COMP_CWORD -gt 1 ]]; then\n        case ${COMP_WORDS[1]} in\n";
        for (const ManualPage *const command : program.commands) {
            text += QByteArray("        ") + command->command + ")\n"
                + indented(completionOf(*command), "            ") + "            ;;\n";
        }
        text += "        help)\n            [[ $COMP_CWORD -eq 2 ]] && " + offerWords(termNames(program.page))
            + "            ;;\n        esac\n        return\n    fi\n";
    }
    text += indented(completionOf(program.page), "    ");
    return text + "}\ncomplete -o default -F " + name + ' ' + program.page.program + '\n';
}
