// SPDX-License-Identifier: MIT
// TextCounter applies the counting rules to plain text, in one pass over the masks of its characters; words,
// sentences and paragraphs are counted nowhere else. It does not count lines as laid out on paper.
// Thread: one at a time.  Owner: the code that counts; large, so keep it for the next text.
#pragma once

#include "platform/segmentation/Paragraphs.h"
#include "platform/segmentation/WordScanner.h"
#include "text_statistics/CountingRules.h"
#include "text_statistics/PlainTextCounter.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QStringView>

#include <functional>
#include <optional>

class TextCounter {
public:
    /// Called with the position up to which the text has been counted: after every paragraph, and now and
    /// then in long ones.
    using Progress = std::function<void(qsizetype position)>;

    /// All counts but numberOfLines, which stays 0, in time proportional to the length of the text. report:
    /// unless null, gets what is counted.
    [[nodiscard]] QBYWordCounterStats count(QStringView text, const TextRules &rules,
        const Progress &progress = {}, ItemReport *report = nullptr);

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
    template <bool isReporting>
    class Pass;

    WordScanner m_scanner;
    std::optional<PlainTextCounter> m_plain; // made when first needed
};
