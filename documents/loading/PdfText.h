// SPDX-License-Identifier: MIT
// PdfText judges the text of a PDF file: whether a reader of the file would call it a text.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"

#include <QStringView>

#include <optional>

/// NoText where no page has any, so that a scan is not taken for an empty document; UnmappedText where
/// isUnmapped(); otherwise absent.
std::optional<DocumentError::Cause> faultOfPdfText(QStringView text);

/// Whether the text of a PDF file is not characters: a font without a map to characters (ToUnicode), as is
/// common in Arabic files, gives the numbers of its glyphs instead. True where more than one in twenty of the
/// characters other than white space are control characters or code points without a character. In files with
/// mapped fonts, these are fewer than one in a hundred, most of them in formulas; without, one in fourteen or
/// more.
bool isUnmapped(QStringView text);
