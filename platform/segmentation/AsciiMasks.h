// SPDX-License-Identifier: MIT
// Fills the masks of the ASCII characters of a text, by the widest vectors of the processor.
// Thread: any.
#pragma once

#include "platform/segmentation/CharacterClasses.h"

#include <QtGlobal>

#include <array>

/// One mask for each class, and one for the code units of which the others know nothing, as they are not
/// ASCII. Bit n of each is code unit n.
using ClassMasks = std::array<quint64, characterClassCount + 1>;

inline constexpr size_t notAsciiMask = characterClassCount;

/// units: 64 code units for each element of masks.
void readAsciiMasks(const char16_t *units, ClassMasks *masks, size_t count);
