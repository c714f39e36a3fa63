// SPDX-License-Identifier: MIT
// TextCounter applies the counting rules to plain text, paragraph by paragraph; words, sentences and
// paragraphs are counted nowhere else. It does not count lines as laid out on paper.
// Thread: one at a time.  Owner: the code that counts; expensive to create, so keep it for the next text.
#pragma once

#include "platform/segmentation/Paragraphs.h"
#include "platform/segmentation/Segmenter.h"
#include "text_statistics/CountingRules.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QStringView>

#include <functional>

class TextCounter {
public:
    /// Called after every paragraph with the position up to which the text has been counted.
    using Progress = std::function<void(qsizetype position)>;

    /// All counts but numberOfLines, which stays 0, in time proportional to the length of the text.
    [[nodiscard]] QBYWordCounterStats count(
        QStringView text, const TextRules &rules, const Progress &progress = {});

    /// The same for one paragraph of a text, its separator included. No count of a paragraph depends on its
    /// neighbours: the counts of a text are the sum over its paragraphs.
    [[nodiscard]] QBYWordCounterStats countParagraph(
        QStringView text, const Paragraph &paragraph, const TextRules &rules);

    // Single counts of any text.
    [[nodiscard]] quint64 numberOfWords(QStringView text, const TextRules &rules);
    [[nodiscard]] quint64 numberOfSentences(QStringView text, const TextRules &rules);
    [[nodiscard]] quint64 numberOfParagraphs(QStringView text, const TextRules &rules);
    [[nodiscard]] quint64 numberOfParagraphsIndented(QStringView text, const TextRules &rules);

private:
    [[nodiscard]] bool isSentenceCounted(QStringView sentence, const TextRules &rules);
    [[nodiscard]] quint64 wordsOf(QStringView content, const TextRules &rules);
    [[nodiscard]] quint64 sentencesOf(QStringView content, const TextRules &rules);

    Segmenter m_segmenter;
};

/// The rules that depend on the characters alone: neither preferences nor locale change them.
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
