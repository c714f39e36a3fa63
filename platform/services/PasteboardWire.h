// SPDX-License-Identifier: MIT
// The form of a pasteboard in a message on the bus: a{sv}, from MIME type to the bytes of that form, as "ay",
// or as "h", a memory file that is sealed and holds just them. Thread: any.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QVariantMap>

#include <optional>

namespace PasteboardWire {

/// Longer forms travel as memory files.
constexpr qsizetype longestInMessage = 64 << 10;
constexpr qsizetype mostForms = 64;
/// Bytes of all forms together.
constexpr quint64 largestPasteboard = (1ULL << 31) - 1;

/// Forms for which there is no memory are left out.
QVariantMap toMessage(const Pasteboard &pasteboard);
/// Absent where the map has more forms or bytes than the above, or a value of another type, or a memory file
/// that its sender can still change.
std::optional<Pasteboard> fromMessage(const QVariantMap &map);

} // namespace PasteboardWire
