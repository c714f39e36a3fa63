// SPDX-License-Identifier: MIT
// TextDifference tells where two styled texts differ, for readable failures.
// Thread: any.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <QString>

/// Empty for equal texts.
QString differenceBetween(const AttributedString &expected, const AttributedString &actual);

/// What a text has of a range.
AttributedString rangeOf(const AttributedString &text, qsizetype start, qsizetype length);
