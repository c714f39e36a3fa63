// SPDX-License-Identifier: MIT
// What the bytes of fonts stand for that have no letters at the places of letters.
// Thread: any.
#pragma once

#include <array>

/// The font Symbol: Greek letters are letters, so that words of them are words.
std::array<char16_t, 256> symbolFontCharacters();

/// Any other symbol font: a byte is the private character at which such fonts have their glyph. Control
/// characters and the space remain.
std::array<char16_t, 256> pictureFontCharacters();
