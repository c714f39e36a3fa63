// SPDX-License-Identifier: MIT
#include "platform/segmentation/WordTrace.h"

#include <bit>
#include <utility>

void WordTrace::addBits(qsizetype position, const Bits &bits)
{
    for (quint64 left = bits.starts | bits.continuing | bits.extenders; left; left &= left - 1) {
        const quint64 bit = left & (~left + 1);
        const qsizetype at = position + std::countr_zero(left);
        if (bits.starts & bit) {
            closeSegment();
            m_start = at;
            m_end = at;
        }
        if ((bits.starts | bits.continuing) & bit) {
            // Steps over a full stop and the like too.
            m_end = at + 1;
            m_isWord = m_isWord || (bits.lettered & bit);
        } else if (at == m_end && m_end > m_start) {
            m_end = at + 1;
        }
    }
}

void WordTrace::addWord(qsizetype start, qsizetype end)
{
    closeSegment();
    m_yield(start, end);
}

void WordTrace::closeSegment()
{
    if (std::exchange(m_isWord, false))
        m_yield(m_start, m_end);
    m_start = m_end;
}
