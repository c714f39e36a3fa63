// SPDX-License-Identifier: MIT
// SymbolFont recognizes fonts with symbols in place of letters, and maps the codes of the font Symbol to
// characters.
// Thread: any.
#pragma once

#include <QString>
#include <QStringView>

/// Documents store the glyph at a code of a symbol font as this private character plus the code.
inline constexpr char16_t symbolGlyphBase = 0xF000;

/// Whether a family is the font Symbol, whose codes Unicode has characters for. Ignores case.
bool isSymbolFamily(QStringView family);

/// Whether a family is a font of symbols: Symbol, or one with pictures. Ignores case.
bool isSymbolOrPictureFamily(QStringView family);

/// The character at a code of the font Symbol (Adobe's Symbol encoding). Greek letters are letters, so that
/// words of them are words. Codes below 0x20 are control characters; a code without a character is the
/// private character of its glyph.
char16_t symbolFontCharacter(uchar code);

/// Replaces the private characters of the font Symbol by the characters that they show. Text in other fonts
/// is unchanged.
QString replaceSymbolGlyphs(QString text, QStringView family);
