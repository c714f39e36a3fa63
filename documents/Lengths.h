// SPDX-License-Identifier: MIT
// Lengths holds what the readers have in common about lengths: the units of RTF and Word documents, and the
// maximum length of a document.
// Thread: any; constants.
#pragma once

#include <QtGlobal>

#include <cstdint>

inline constexpr double twipsPerPoint = 20;
inline constexpr double halfPointsPerPoint = 2;

/// Bytes of a document, and code units of its text. Positions in a text have 32 bits, and a text never has
/// more code units than its document has bytes.
inline constexpr qsizetype maxDocumentLength = INT32_MAX - 1;
