// SPDX-License-Identifier: MIT
// TextCounter applies the counting rules to plain text, paragraph by paragraph: the one place where words,
// sentences and paragraphs are counted. Lines as laid out on paper are not counted here.
// Thread: one at a time.  Owner: whoever makes it; dear to make, so kept for the next text.
#pragma once

#include "platform/segmentation/Paragraphs.h"
#include "platform/segmentation/Segmenter.h"
#include "text_statistics/CountingRules.h"

#include <QStringView>

#include <functional>

/// What adds up over the paragraphs of a text. Characters are UTF-16 code units.
struct TextCounts {
    quint64 words = 0;
    quint64 charactersNotIncludingWhiteSpace = 0;
    quint64 characters = 0;
    quint64 sentences = 0;
    quint64 hardLineBreaks = 0; ///< lines, in truth: "a" and "a\n" have one each
    quint64 paragraphs = 0;
    quint64 paragraphsIndented = 0;

    TextCounts &operator+=(const TextCounts &other);
    bool operator==(const TextCounts &) const = default;
};

class TextCounter {
public:
    /// Told, after every paragraph, the position up to which the text is counted; on the counting thread.
    using Progress = std::function<void(qsizetype position)>;

    /// All counts of a text, in time proportional to its length.
    [[nodiscard]] TextCounts count(QStringView text, const TextRules &rules, const Progress &progress = {});

    /// All counts of one paragraph of a text, its separator included. Nothing in a paragraph depends on its
    /// neighbours: the counts of a text are the sum over its paragraphs.
    [[nodiscard]] TextCounts countParagraph(
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

/// White space: general category Z, U+0009 to U+000D, and U+0085. All else counts, a character outside the
/// Basic Multilingual Plane as 2.
quint64 numberOfCharactersNotIncludingWhiteSpace(QStringView text);

/// Lines as ended by LF, CR, CR LF, U+2028 and U+2029; a last line without an end counts too.
quint64 numberOfHardLineBreaks(QStringView text);

// The text without white space at both ends ends in the mark, or in the mark and a straight double quote.
bool endsWithPeriod(QStringView text);
bool endsWithQuestionMark(QStringView text);
bool endsWithExclamationPoint(QStringView text);
bool endsWithTerminalPunctuationMark(QStringView text);
