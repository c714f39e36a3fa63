// SPDX-License-Identifier: MIT
// UnmappedText recognises text of PDF files that is none: a font without a map to characters (ToUnicode)
// gives the numbers of its glyphs in their place, as is common in Arabic files. Thread: any.
#pragma once

#include <QStringView>

/// Whether more than one in twenty of the characters other than white space are such as no text has: control
/// characters and code points that are no characters. Files whose fonts are mapped have fewer than one in a
/// hundred, in formulas most; files whose fonts are not have one in fourteen and more.
bool isUnmapped(QStringView text);
