// SPDX-License-Identifier: MIT
// PlainTextCounter applies the counting rules to plain text in the order of their definition, with a
// segmenter of ICU. TextCounter gives the same numbers many times faster; this one is what it is compared
// with, and decides the few cases that it leaves open.
// Thread: one at a time.  Owner: the code that counts; expensive to create, so keep it for the next text.
#pragma once

#include "platform/segmentation/Paragraphs.h"
#include "platform/segmentation/Segmenter.h"
#include "text_statistics/CountingRules.h"
#include "text_statistics/ItemReport.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QStringView>

class PlainTextCounter {
public:
    /// All counts but numberOfLines, which stays 0, in time proportional to the length of the text.
    /// report: unless null, gets what is counted.
    [[nodiscard]] QBYWordCounterStats count(
        QStringView text, const TextRules &rules, ItemReport *report = nullptr);

    /// Whether and why a sentence counts, without a look at blank ones. sentence: as Segmenter finds it.
    [[nodiscard]] CountingReason judgeSentence(QStringView sentence, const TextRules &rules);

private:
    [[nodiscard]] QBYWordCounterStats countParagraph(
        QStringView text, const Paragraph &paragraph, const TextRules &rules, ItemReport *report);
    [[nodiscard]] quint64 wordsOf(
        QStringView text, QStringView content, const TextRules &rules, ItemReport *report);
    [[nodiscard]] quint64 sentencesOf(
        QStringView text, QStringView content, const TextRules &rules, ItemReport *report);

    Segmenter m_segmenter;
};
