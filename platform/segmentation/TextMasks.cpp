// SPDX-License-Identifier: MIT
#include "platform/segmentation/TextMasks.h"

#include <algorithm>

void TextMasks::read(QStringView text, qsizetype start, qsizetype length)
{
    m_length = length;
    const char16_t *units = text.utf16() + start;
    const auto full = static_cast<size_t>(length / bitsPerWord);
    readAsciiMasks(units, m_classes.data(), full);
    if (length % bitsPerWord != 0) {
        std::array<char16_t, bitsPerWord> rest{}; // NUL is of no class
        std::copy(units + length / bitsPerWord * bitsPerWord, units + length, rest.begin());
        readAsciiMasks(rest.data(), &m_classes[full], 1);
    }
    for (qsizetype index = 0; index < wordCount(); ++index) {
        m_facts[static_cast<size_t>(index)].fill(0);
        addNotAscii(text, start + index * bitsPerWord, m_classes[static_cast<size_t>(index)]);
    }
}

void TextMasks::addNotAscii(QStringView text, qsizetype from, ClassMasks &masks)
{
    for (quint64 left = masks[notAsciiMask]; left; left &= left - 1) {
        const int bit = std::countr_zero(left);
        quint32 flags = classesAt(text.utf16(), text.size(), from + bit).flags();
        for (; flags; flags &= flags - 1)
            masks[static_cast<size_t>(std::countr_zero(flags))] |= quint64{1} << bit;
    }
}

void TextMasks::truncate(qsizetype length)
{
    m_length = length;
    if (length % bitsPerWord == 0)
        return;
    const quint64 left = rangeMask(0, 0, length % bitsPerWord);
    for (quint64 &mask : m_classes[static_cast<size_t>(length / bitsPerWord)])
        mask &= left;
    for (quint64 &mask : m_facts[static_cast<size_t>(length / bitsPerWord)])
        mask &= left;
}
