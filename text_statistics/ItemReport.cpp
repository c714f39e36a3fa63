// SPDX-License-Identifier: MIT
#include "text_statistics/ItemReport.h"

#include "platform/segmentation/LineBreaks.h"
#include "platform/segmentation/Paragraphs.h"

namespace {

/// The first position from start on, and before end, that is white space or is not; or end.
qsizetype findSpace(QStringView text, qsizetype start, qsizetype end, bool isSpace)
{
    const char16_t *const units = text.utf16();
    while (start < end && QChar::isSpace(units[start]) != isSpace)
        ++start;
    return start;
}

} // namespace

void ItemReport::add(qsizetype start, qsizetype end, CountingReason reason) const
{
    m_yield({.statistic = m_statistic, .start = start, .length = end - start, .reason = reason});
}

void ItemReport::addWord(qsizetype start, qsizetype end, const TextRules &rules)
{
    if (!wants(Statistic::Words))
        return;
    addGap(start);
    m_gap = end;
    const bool isWord = rules.isWordCounted(m_text.sliced(start, end - start));
    add(start, end, isWord ? CountingReason::Word : CountingReason::SingleCharacter);
}

// Between two words, reports what white space separates from both.
void ItemReport::addGap(qsizetype end)
{
    qsizetype start = m_gap;
    if (start > 0) // attached to the word before
        start = findSpace(m_text, start, end, true);
    for (;;) {
        start = findSpace(m_text, start, end, false);
        const qsizetype next = findSpace(m_text, start, end, true);
        if (start == end || (next == end && end < m_text.size()))
            return;
        add(start, next, CountingReason::NoLetterOrDigit);
        start = next;
    }
}

void ItemReport::addCharacters(qsizetype start, qsizetype end, bool areWhite)
{
    if (start == end || (!wants(Statistic::Characters) && !wants(Statistic::CharactersIncludingWhitespace)))
        return;
    if (m_isRunWhite != areWhite || m_runEnd != start) {
        finishRun();
        m_runStart = start;
        m_isRunWhite = areWhite;
    }
    m_runEnd = end;
}

void ItemReport::finishRun()
{
    if (m_runStart == m_runEnd)
        return;
    if (wants(Statistic::CharactersIncludingWhitespace))
        add(m_runStart, m_runEnd, CountingReason::AnyCharacter);
    else
        add(m_runStart, m_runEnd, m_isRunWhite ? CountingReason::WhiteSpace : CountingReason::NotWhiteSpace);
    m_runStart = m_runEnd;
}

void ItemReport::addSentence(qsizetype start, qsizetype end, CountingReason reason)
{
    if (!wants(Statistic::Sentences))
        return;
    const bool isBlank = !isCounted(reason) && findSpace(m_text, start, end, false) == end;
    add(start, end, isBlank ? CountingReason::Blank : reason);
}

void ItemReport::addLine(Statistic statistic, qsizetype start, qsizetype end)
{
    if (!wants(statistic))
        return;
    const char16_t last = m_text.utf16()[end - 1];
    if (isLineEnd(last) || (statistic == Statistic::Lines && isForcedLineBreak(last)))
        add(start, end, CountingReason::LineEnd);
    else
        add(start, end, end == m_text.size() ? CountingReason::TextEnd : CountingReason::ColumnFull);
}

void ItemReport::addParagraph(qsizetype start, qsizetype end, bool isCounted)
{
    const bool isIndent = wants(Statistic::IndentedParagraphs);
    if (!wants(Statistic::Paragraphs) && (!isIndent || start == end))
        return;
    const char16_t *const units = m_text.utf16();
    if (!isCounted && findSpace(m_text, start, end, false) == end)
        add(start, end, CountingReason::Blank);
    else if (isIndent && units[start] != u'\t')
        add(start, end,
            QChar::isSpace(units[start]) ? CountingReason::OtherWhiteSpace : CountingReason::NoIndent);
    else if (!isCounted)
        add(start, end, CountingReason::TooFewSentences);
    else
        add(start, end, isIndent ? CountingReason::Tab : CountingReason::Paragraph);
}

void ItemReport::finish()
{
    if (wants(Statistic::Words))
        addGap(m_text.size());
    finishRun();
}
