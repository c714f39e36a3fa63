// SPDX-License-Identifier: MIT
#include "platform/text_layout/PairText.h"

#include <algorithm>

bool PairText::setParagraph(const AttributedString &text, const Paragraph &paragraph, bool isOneRun)
{
    const QStringView content = paragraph.content(text.string());
    m_units = content.utf16();
    m_length = content.size();
    m_chain = {};
    m_run = {};
    m_hasFailed = !m_runs.setParagraph(text, paragraph, isOneRun);
    if (!m_hasFailed)
        enter(0);
    return !m_hasFailed;
}

void PairText::enterOther(qsizetype position)
{
    const PairRun *const found = m_runs.runAt(position);
    if (!found || position >= found->end) {
        m_hasFailed = true;
        return;
    }
    m_run = *found;
    m_classes = m_run.pairs->classes();
    m_advances = m_run.pairs->advances();
}

int PairText::measurePair(qsizetype at)
{
    if (at + 1 < m_run.end)
        m_run.pairs->measure(m_units[at], m_units[at + 1]);
    else
        m_run.pairs->measureAlone(m_units[at]);
    return knownPair(at);
}

double PairText::advanceInChain(qsizetype at)
{
    if (!m_chain.holds(at)) {
        const int own = pair(at);
        const bool touchesChain = isJoined(at - 1) || (isJoined(at + 1) && !isApart(m_units[at]));
        if (own < PairAdvances::limit && !touchesChain)
            return own;
        if (own < PairAdvances::limit || own == PairAdvances::joined)
            loadChain(isInChain(at) ? at : at + 1);
        if (!m_chain.holds(at)) {
            m_hasFailed = true;
            return 0;
        }
    }
    return static_cast<double>(m_chain.shaped->advances[static_cast<size_t>(at - m_chain.start)]);
}

// Beyond the neighbours of a chain, nothing affects it, and it affects nothing.
void PairText::loadChain(qsizetype at)
{
    m_chain = {};
    qsizetype start = at;
    while (start > m_run.start && at - start < Chain::maxLength && isInChain(start - 1))
        --start;
    qsizetype end = at + 1;
    while (end < m_run.end && end - at < Chain::maxLength && isInChain(end))
        ++end;
    if (start > m_run.start && !isApart(m_units[start - 1]))
        --start;
    const qsizetype shapedEnd = end < m_run.end && !isApart(m_units[end]) ? end + 1 : end;
    if (shapedEnd - start > Chain::maxLength || m_run.tracking != 0)
        return;
    const QStringView text(m_units + start, shapedEnd - start);
    const ShapingStyle &style = m_run.pairs->style();
    const CachedWord *shaped = m_chains.find(style.number(), text);
    if (!shaped) {
        shaped = &m_chains.insert(style.number(), text, true);
        m_shaper.shape(style, text, 0, text.size(), shaped->advances.data(), shaped->flags.data());
    }
    m_chain = {start, end, shaped};
}

bool PairText::isUnsafe(qsizetype at)
{
    if (at <= 0 || at >= m_length || isApart(m_units[at - 1]) || isApart(m_units[at]))
        return false;
    enter(at);
    if (m_hasFailed || at == m_run.start)
        return false;
    if (isInChain(at - 1) || isInChain(at)) {
        loadChain(isInChain(at) ? at : at - 1);
        const auto index = static_cast<size_t>(at - m_chain.start);
        if (!m_chain.shaped || index >= m_chain.shaped->flags.size())
            return true;
        const quint8 flags = m_chain.shaped->flags[index];
        return (flags & (StartsCluster | UnsafeToBreak)) != StartsCluster;
    }
    return m_run.pairs->isUnsafe(classAt(at - 1), classAt(at));
}

bool PairText::isUnsafeKerning(qsizetype at)
{
    if (!isUnsafe(at))
        return false;
    if (isInChain(at) || isInChain(at - 1))
        m_hasFailed = true;
    return !m_hasFailed;
}

double PairText::growthAtLineEnd(qsizetype at)
{
    enter(at);
    m_run.pairs->measureAlone(m_units[at]);
    const int alone = m_advances[PairAdvances::indexOf(classAt(at), PairAdvances::endClass)];
    return (alone - pair(at)) * m_run.pointsPerUnit;
}

double PairText::advanceBetween(qsizetype start, qsizetype end)
{
    double sum = 0;
    for (qsizetype at = start; at < end && !m_hasFailed; ++at) {
        enter(at);
        sum += (advance(at) + m_run.tracking) * m_run.pointsPerUnit;
    }
    return sum;
}
