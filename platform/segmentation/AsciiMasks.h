// SPDX-License-Identifier: MIT
// The masks of character classes of 64 code units at a time, for the ASCII characters among them, by the
// widest vectors of the processor.
// Thread: any.
#pragma once

#include <QtGlobal>

/// Bit n of each mask is code unit n.
struct AsciiMasks {
    quint64 letter;
    quint64 number;
    quint64 connector;
    quint64 unlettered;
    quint64 middleOfLetters;
    quint64 middleOfNumbers;
    quint64 sign;
    quint64 white;
    quint64 terminator;
    quint64 paragraphSeparator;
    quint64 notAscii; ///< the code units of which the other masks know nothing
};

/// units: 64 code units. The classes are those of CharacterClass.
void readAsciiMasks(const char16_t *units, AsciiMasks &masks);
