// SPDX-License-Identifier: MIT
// FlatTextReader reads styled text in the form that FlatTextFormat describes. It trusts nothing: the bytes
// come from a program that a document may have taken over.
// Thread: any.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <QByteArrayView>

#include <optional>

/// Absent unless the bytes are exactly one text whose every field is in its range: indices and lengths, the
/// order of runs and tab stops, finite numbers, the values of enumerations. Text and strings may be any
/// UTF-16 code units. Sets of attributes may be equal, unlike those of a builder: nothing but the speed of
/// layout depends on that. Takes time and memory proportional to the length. Throws std::bad_alloc.
std::optional<AttributedString> readFlatText(QByteArrayView bytes);
