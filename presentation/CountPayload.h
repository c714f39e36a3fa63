// SPDX-License-Identifier: MIT
// The documents that the panel hands to the counting service, as sealed memory.
// Thread: any; each takes as long as its document is large. Used inside this folder only.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "presentation/WordCounterServiceProtocol.h"

#include <QUrl>

// Null where the document cannot be had.
namespace CountPayload {

/// The whole text as flat RTFD.
WordCounterServiceProtocol::Data ofText(const AttributedString &text);

/// The bytes of the file, as they are. url: of a file on this machine.
WordCounterServiceProtocol::Data ofFile(const QUrl &url);

} // namespace CountPayload
