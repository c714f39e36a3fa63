// SPDX-License-Identifier: MIT
// Grapheme clusters by the properties of their characters: for single clusters, where running a BreakIterator
// over the whole text would be too expensive.
// Thread: any.
#pragma once

#include <QStringView>

/// The end of the extended grapheme cluster that starts at a boundary (0 to the text's length - 1), by UAX
/// #29, GB3 to GB13, with the Indic conjuncts of ICU's root rules. Always after start; an unpaired surrogate
/// is a cluster.
qsizetype graphemeClusterEnd(QStringView text, qsizetype start);

/// The number of extended grapheme clusters of a text; a line end, CR LF too, is one.
quint64 numberOfGraphemeClusters(QStringView text);

/// Whether a code unit is a character that never forms a cluster with another one of these: a text of such
/// characters has as many clusters as code units.
bool standsAlone(char16_t unit);

/// Whether a character joins the cluster before it: marks, joiners, modifiers.
bool continuesGraphemeCluster(char32_t character);

/// Whether a character is a mark or a joiner without a width of its own: nonspacing marks, U+200C, U+200D.
/// Enclosing marks have a width in many fonts.
bool isNonspacing(char32_t character);

/// Whether a cluster has emoji presentation (UTS #51): its first character has it by default or by U+FE0F,
/// and no U+FE0E requests text presentation.
bool isEmojiCluster(QStringView cluster);

/// Default_Ignorable_Code_Point: invisible if the font has no glyph for it.
bool isDefaultIgnorable(char32_t character);

/// The first code units of a text, at most max of them (1 or more), without half a surrogate pair.
QStringView firstUnits(QStringView text, qsizetype max);

/// The code point at a position (0 to the text's length - 1); an unpaired surrogate gives U+FFFD.
char32_t codePointAt(QStringView text, qsizetype position);
