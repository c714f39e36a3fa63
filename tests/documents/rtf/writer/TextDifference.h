// SPDX-License-Identifier: MIT
// TextDifference describes where two styled texts differ, for readable failures.
// Thread: any.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <QString>

/// Empty for equal texts.
QString differenceBetween(const AttributedString &expected, const AttributedString &actual);

/// The part of a text in a range.
AttributedString rangeOf(const AttributedString &text, qsizetype start, qsizetype length);
