// SPDX-License-Identifier: MIT
// FlatTextWriter writes styled text in the form that FlatTextFormat describes.
// Thread: any.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <QByteArray>

#include <optional>
#include <span>

/// Writes the text at the start of the memory. Returns the number of bytes written; absent, with nothing
/// written, if the memory is too small or the text has 2^31 code units or more. Throws std::bad_alloc.
std::optional<qsizetype> writeFlatText(const AttributedString &text, std::span<char> memory);

/// The same as an array of bytes; empty if the text is too long.
QByteArray flatTextOf(const AttributedString &text);
