// SPDX-License-Identifier: MIT
// The statistic of a styled text that its plain characters do not have: its lines on paper.
// Thread: main.
#pragma once

#include "platform/styled_text/AttributedString.h"

namespace QBYExtension {

/// The lines of the text as laid out, in its own fonts and paragraph styles, on the paper and between the
/// margins of the preferences.
quint64 numberOfLines(const AttributedString &text);

} // namespace QBYExtension
