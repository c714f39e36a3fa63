// SPDX-License-Identifier: MIT
// The content of a pasteboard as styled text.
// Thread: any.
#pragma once

#include "platform/pasteboard/Pasteboard.h"
#include "platform/styled_text/AttributedString.h"

#include <optional>

/// The richest form that can be read as styled text: flat RTFD, then RTF, HTML, plain text; absent where
/// there is none. A damaged form is passed over for the next one.
[[nodiscard]] std::optional<AttributedString> readAttributedString(const Pasteboard &pasteboard);
