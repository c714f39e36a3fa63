// SPDX-License-Identifier: MIT
// Grapheme clusters by the properties of their characters: for one cluster here and there, where passing a
// whole text through a BreakIterator would cost more than it answers.
// Thread: any.
#pragma once

#include <QStringView>

/// The end of the extended grapheme cluster (UAX #29, GB3 to GB13, and the
/// conjuncts of Indic scripts that ICU's root rules keep together) that starts at a boundary, 0 to the text's
/// length - 1. Always behind the start; half a surrogate pair is a cluster of its own.
qsizetype graphemeClusterEnd(QStringView text, qsizetype start);

/// Whether a character at the start of a text would join the cluster before it: marks, joiners, modifiers.
bool continuesGraphemeCluster(char32_t character);

/// Whether a cluster asks to be shown as a colourful picture (UTS #51): it starts with a character that is
/// shown so by default, or U+FE0F asks for it, and U+FE0E does not ask for text.
bool isEmojiCluster(QStringView cluster);

/// Default_Ignorable_Code_Point: invisible where a font has no glyph for it.
bool isDefaultIgnorable(char32_t character);

/// The code point at a position (0 to the text's length - 1); half a surrogate pair is U+FFFD.
char32_t codePointAt(QStringView text, qsizetype position);
