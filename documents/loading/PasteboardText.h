// SPDX-License-Identifier: MIT
// PasteboardText reads the content of a pasteboard as styled text.
// Thread: any. Blocks until the content is read.
#pragma once

#include "platform/pasteboard/Pasteboard.h"
#include "platform/styled_text/AttributedString.h"

#include <optional>
#include <stop_token>

/// The richest form that can be read: flat RTFD, then RTF, HTML, plain text. Damaged forms are skipped;
/// absent where no form is left, and where a stop is requested meanwhile.
[[nodiscard]] std::optional<AttributedString> readAttributedString(
    const Pasteboard &pasteboard, const std::stop_token &stop = {});
