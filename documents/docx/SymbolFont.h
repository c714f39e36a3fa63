// SPDX-License-Identifier: MIT
// The characters of fonts whose glyphs are symbols in place of letters: documents keep them in the private
// use area. Thread: any.
#pragma once

#include <QString>

/// Puts, for text in the font Symbol, each character of U+F020 to U+F0FE in place of which there is a
/// character of its own (Adobe's Symbol encoding). Text in other fonts stays as it is.
QString withDepictedSymbols(const QString &text, const QString &font);

/// The character that a document means by a code of w:sym. Of a symbol font, some programs store the codes as
/// they are, others, as Word does, moved to U+F000 to U+F0FF; in other fonts the code is the character.
QChar symbolCharacter(char16_t code, const QString &font);
