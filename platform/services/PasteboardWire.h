// SPDX-License-Identifier: MIT
// PasteboardWire is the form of a pasteboard in a message on the bus: a{sv}, from MIME type to the bytes of
// that form, either as "ay" or as "h", a sealed memory file with exactly these bytes.
// Thread: any.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QVariantMap>

#include <optional>

namespace PasteboardWire {

/// Bytes; larger forms travel as memory files.
constexpr qsizetype maxInlineSize = 64 << 10;
constexpr qsizetype maxForms = 64;
/// Bytes of all forms together.
constexpr quint64 maxPasteboardSize = (1ULL << 31) - 1;

/// Leaves out forms for which there is not enough memory.
QVariantMap toMessage(const Pasteboard &pasteboard);
/// Absent if the map exceeds these limits, or has a value of another type or a memory file that its sender
/// can still change.
std::optional<Pasteboard> fromMessage(const QVariantMap &map);

} // namespace PasteboardWire
