// SPDX-License-Identifier: MIT
// CountedPiece is a part of a text that is counted alone. The counts of a text are the sum over its pieces.
// Thread: any.
#pragma once

#include "text_statistics/QBYWordCounterStats.h"

#include <QtGlobal>

/// Whole paragraphs, from start to end (UTF-16 code units).
struct CountedPiece {
    qsizetype start;
    qsizetype end;
    QBYWordCounterStats counts{};
};
