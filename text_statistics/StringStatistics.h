// SPDX-License-Identifier: MIT
// The statistics of a string under the preferences and the locale of the moment: TextCounter bound to them.
// Thread: any.
#pragma once

#include <QStringView>
#include <QtGlobal>

namespace QBYExtension {

/// Unicode word segments that hold a letter, digit or ideograph; in the locale en_US without those of one
/// UTF-16 code unit other than A, I, O and X in either case.
quint64 numberOfWords(QStringView text);

/// UTF-16 code units that are no white space (general category Z, U+0009 to U+000D, U+0085).
quint64 numberOfCharactersNotIncludingWhiteSpace(QStringView text);

/// Unicode sentences with at least one counted word and, where the preference asks for it, terminal
/// punctuation.
quint64 numberOfSentences(QStringView text);

/// Lines as separated by LF, CR, CR LF, U+2028 and U+2029; despite the name not the line ends.
quint64 numberOfHardLineBreaks(QStringView text);

/// Paragraphs that are not blank and have at least the preferred minimum of counted sentences.
quint64 numberOfParagraphs(QStringView text);

/// Those of numberOfParagraphs() that begin with a tab.
quint64 numberOfParagraphsIndented(QStringView text);

// Whether the text, white space at both ends left out, ends in the mark or in the mark and a straight double
// quote.
bool endsWithPeriod(QStringView text);
bool endsWithQuestionMark(QStringView text);
bool endsWithExclamationPoint(QStringView text);
bool endsWithTerminalPunctuationMark(QStringView text);

} // namespace QBYExtension
