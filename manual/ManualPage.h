// SPDX-License-Identifier: MIT
// ManualPage is what a program or a command says of itself: its options, operands, exit statuses and
// examples.
// --help, the options that are accepted, the man page and the shells' completions are all made from it.
// Thread: any; a value.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

// Texts are UTF-8 without line ends and without markup: man pages print options in bold, placeholders such as
// FILE in italics. They are marked with QT_TRANSLATE_NOOP("Manual", …) and translated when they are printed.

/// What a shell completes an argument with.
enum class ShellCompletion { Nothing, Files, Commands, Terms };

struct ManualOption {
    const char *name; ///< without dashes, as "json"
    char letter = 0; ///< as in -h; 0 for none
    const char *placeholder = nullptr; ///< of its argument, as "LIST"; null if it takes none
    ShellCompletion completion = ShellCompletion::Nothing; ///< of its argument
    const char *text;
};

/// A word that can be given as an operand, such as the name of a command.
struct ManualTerm {
    const char *name;
    const char *text;
    std::vector<const char *> values = {}; ///< the words that may follow it, as far as they can be listed
};

struct ManualExitStatus {
    int status;
    const char *text; ///< a sentence without its full stop
};

struct ManualExample {
    const char *command;
    const char *text;
};

struct ManualPage {
    const char *program; ///< as "quillbay"
    const char *command = nullptr; ///< as "count"; null for a page of the program itself
    int section = 1; ///< of the manual: 1 for users, 8 for programs that others start
    const char *summary; ///< a clause without capital and full stop
    std::vector<const char *> usages; ///< what may follow the name; each a line of its own
    std::vector<const char *> description = {}; ///< paragraphs
    const char *termsTitle = nullptr;
    std::vector<ManualTerm> terms = {};
    /// An option after which every operand is a term; without it, a term may be followed by its value.
    const char *termsOption = nullptr;
    ShellCompletion completion = ShellCompletion::Nothing; ///< of the operands
    std::vector<ManualOption> options = {};
    std::vector<const char *> notes = {}; ///< paragraphs
    std::vector<ManualExitStatus> exitStatuses = {};
    std::vector<ManualExample> examples = {};
    std::vector<const char *> seeAlso = {}; ///< pages of ours and others, as "wc(1)"

    /// As it is typed: "quillbay count".
    [[nodiscard]] QByteArray typedName() const;
    /// As man finds it: "quillbay-count".
    [[nodiscard]] QByteArray pageName() const;
};

/// Options that several programs have.
ManualOption helpOption();
ManualOption versionOption();
ManualOption markdownOption();
ManualOption latexOption();

/// What an exit status after wrong usage means.
const char *wrongUsageMeaning();

/// A text of a page, in the user's language.
QString translatedManualText(const char *text);
