// SPDX-License-Identifier: MIT
// The characters that the font Symbol depicts, for documents that keep them in the private use area.
// Thread: any.
#pragma once

#include <QString>

/// Puts, for text in the font Symbol, each character of U+F020 to U+F0FE in place of which there is a
/// character of its own (Adobe's Symbol encoding). Text in other fonts stays as it is.
QString withDepictedSymbols(const QString &text, const QString &font);
