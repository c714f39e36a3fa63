// SPDX-License-Identifier: MIT
// Adds up the advances of pairs of ASCII characters, by the widest vectors of the processor. What it leaves
// is for LineFiller to add one by one.
// Thread: any.
#pragma once

#include <QtGlobal>

/// How many of the first count characters have been added to sum: whole blocks of printable ASCII characters,
/// as long as the sum does not exceed room. units: the characters and the one that follows them. advances: as
/// of PairAdvances.
qsizetype addAsciiAdvances(const char16_t *units, qsizetype count, const int *advances, int room, int &sum);
