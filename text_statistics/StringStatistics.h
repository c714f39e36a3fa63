// SPDX-License-Identifier: MIT
// The statistics of strings, plain and styled, under the current preferences and locale. TextCounter and
// MeasuringSurface do the counting.
// Thread: any for plain strings; main for styled ones.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <QStringView>
#include <QtGlobal>

namespace QBYExtension {

/// Unicode word segments (UAX #29) that hold a letter, digit or ideograph; in the locale en_US without those
/// of one UTF-16 code unit, except A, I, O and X in either case.
quint64 numberOfWords(QStringView text);

/// UTF-16 code units that are not white space (general category Z, U+0009 to U+000D, U+0085).
quint64 numberOfCharactersNotIncludingWhiteSpace(QStringView text);

/// Unicode sentences (UAX #29) with at least one counted word and, if the preference requires it, terminal
/// punctuation.
quint64 numberOfSentences(QStringView text);

/// Lines as separated by LF, CR, CR LF, U+2028 and U+2029; despite the name not the line ends.
quint64 numberOfHardLineBreaks(QStringView text);

/// Paragraphs that are not blank and have at least the preferred minimum of counted sentences.
quint64 numberOfParagraphs(QStringView text);

/// Those of numberOfParagraphs() that begin with a tab.
quint64 numberOfParagraphsIndented(QStringView text);

// Whether the text, without white space at both ends, ends in the mark or in the mark and a straight double
// quote.
bool endsWithPeriod(QStringView text);
bool endsWithQuestionMark(QStringView text);
bool endsWithExclamationPoint(QStringView text);
bool endsWithTerminalPunctuationMark(QStringView text);

/// The lines of the text as laid out, in its own fonts and paragraph styles, on the paper and between the
/// margins of the preferences.
quint64 numberOfLines(const AttributedString &text);

} // namespace QBYExtension
