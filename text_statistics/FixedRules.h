// SPDX-License-Identifier: MIT
// The counting rules that depend on the characters alone: neither preferences nor locale change them.
// Thread: any.
#pragma once

#include <QStringView>

namespace FixedRules {

/// White space: general category Z, U+0009 to U+000D, and U+0085. Every other UTF-16 code unit counts, so a
/// character outside the Basic Multilingual Plane counts twice.
quint64 numberOfCharactersNotIncludingWhiteSpace(QStringView text);

/// Lines as ended by LF, CR, CR LF, U+2028 and U+2029; a last line without an end counts too.
quint64 numberOfHardLineBreaks(QStringView text);

// Whether the text, without white space at both ends, ends in the mark or in the mark and a straight double
// quote.
bool endsWithPeriod(QStringView text);
bool endsWithQuestionMark(QStringView text);
bool endsWithExclamationPoint(QStringView text);
bool endsWithTerminalPunctuationMark(QStringView text);

} // namespace FixedRules
