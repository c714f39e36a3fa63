// SPDX-License-Identifier: MIT
#include "manual/Completions.h"

namespace {

constexpr char zshQuote[] = "'\\''";

/// Within the brackets of an option's explanation.
QByteArray inBrackets(const char *text)
{
    return '[' + firstClause(text).replace('[', "\\[").replace(']', "\\]") + ']';
}

QByteArray optionSpecs(const ManualPage &page)
{
    QByteArray specs;
    for (const ManualOption &option : page.options) {
        const QByteArray name = QByteArray("--") + option.name;
        QByteArray spec = name + (option.placeholder ? "=" : "") + inBrackets(option.text);
        if (option.placeholder)
            spec += QByteArray(":") + option.placeholder
                + (option.completion == ShellCompletion::Files ? ":_files" : ": ");
        specs += ' ' + quotedForShell(spec, zshQuote);
        if (option.letter) {
            spec.replace(0, name.size(), QByteArray("-") + option.letter);
            specs += ' ' + quotedForShell(spec, zshQuote);
        }
    }
    return specs;
}

/// An array of "name:explanation".
QByteArray termArray(const QByteArray &name, const ManualPage &page)
{
    QByteArray text = "local -a " + name + "=(";
    for (const ManualTerm &term : page.terms) {
        // The text of a term may begin with the values: "on or off: …".
        text += ' ' + quotedForShell(QByteArray(term.name) + ':' + firstClause(term.text), zshQuote);
    }
    return text + ")\n";
}

QByteArray completeTerms(const ManualPage &page, const QByteArray &indent)
{
    QByteArray text = indent + "_arguments -S -C" + optionSpecs(page) + " '*: :->term' && return\n";
    text += indent + "[[ $state == term ]] || return\n";
    text += indent + "if (( ! $words[(I)--" + page.termsOption + "] )); then\n";
    text += indent + "    case $words[CURRENT-1] in\n";
    for (const auto &[values, names] : termsByValues(page)) {
        text += indent + "    (" + names.join('|') + ") compadd -- " + values + "; return ;;\n";
    }
    text += indent + "    esac\n" + indent + "fi\n";
    return text + indent + termArray("terms", page) + indent + "_describe -t names name terms\n";
}

QByteArray completeOperands(const ManualPage &page, const QByteArray &indent)
{
    if (page.completion == ShellCompletion::Terms)
        return completeTerms(page, indent);
    return indent + "_arguments -S" + optionSpecs(page)
        + (page.completion == ShellCompletion::Files ? " '*:file:_files'" : "") + '\n';
}

} // namespace

QByteArray zshCompletion(const CompletedProgram &program)
{
    const QByteArray name = functionName(program.page);
    QByteArray text = QByteArray("#compdef ") + program.page.program
        + "\n# SPDX-License-Identifier: MIT\n# Completes the arguments of " + program.page.program
        + " in zsh.\n" + name + "() {\n";
    if (program.commands.empty()) {
        text += completeOperands(program.page, "    ");
    } else {
        text += "    local context state line\n    typeset -A opt_args\n";
        text += "    " + termArray("commands", program.page);
        text += "    _arguments -C -S -A '-*'" + optionSpecs(program.page)
            + " '1:command:->command' '*::argument:->argument' && return\n";
        text += "    if [[ $state == command ]]; then\n";
        text += "        _describe -t commands command commands\n        return\n    fi\n";
        text += "    case $words[1] in\n";
        for (const ManualPage *const command : program.commands) {
            text += QByteArray("    (") + command->command + ")\n" + completeOperands(*command, "        ")
                + "        ;;\n";
        }
        text += "    (help)\n        (( CURRENT == 2 )) && _describe -t commands command commands\n"
                "        ;;\n    esac\n";
    }
    return text + "}\n" + name + " \"$@\"\n";
}
