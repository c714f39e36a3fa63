// SPDX-License-Identifier: MIT
// Which characters can be measured pair by pair, as far as the Unicode properties decide it.
// Thread: any.
#pragma once

#include <QtGlobal>

/// Whether a code unit is a character that stands on its own next to others of this kind: each is a grapheme
/// cluster, visible or a blank, written from left to right, in a script whose letters neither join nor move.
/// False for controls, marks, joiners, surrogates, and the fraction slash, around which digits change.
bool isPlainCharacter(char16_t unit);

/// Whether a code unit is a private or unassigned character: Unicode has nothing to say about it.
bool isWithoutMeaning(char16_t unit);
