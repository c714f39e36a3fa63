// SPDX-License-Identifier: MIT
// LatexCommands knows the commands and environments of LaTeX by their names: which of their arguments are
// text.
// Thread: any.
#pragma once

#include <QStringView>

#include <optional>

enum class LatexEffect {
    None, ///< of unknown commands too: their arguments are text
    Block, ///< its argument is a paragraph of its own
    Break, ///< ends a paragraph
    Note, ///< its argument follows the body
    Verbatim, ///< text between two equal characters
    LineBreak,
};

struct LatexCommand {
    LatexEffect effect = LatexEffect::None;
    int skippedArguments = 0; ///< so many arguments in braces are no text
};

/// name: without backslash and star.
LatexCommand latexCommand(QStringView name);

/// The text that a command stands for, such as "ß" for \ss; absent if it stands for none.
std::optional<QStringView> latexSymbol(QStringView name);

/// The combining character of an accent such as \' or \c; absent if the command is none.
std::optional<char16_t> latexAccent(QStringView name);

struct LatexEnvironment {
    bool isText = true; ///< otherwise its content is left out
    bool isTable = false;
    int skippedArguments = 0;
};

/// name: without star.
LatexEnvironment latexEnvironment(QStringView name);
