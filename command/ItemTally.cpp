// SPDX-License-Identifier: MIT
#include "command/ItemTally.h"

#include "command/CommandWords.h"
#include "command/CountColumn.h"

void ItemTally::add(const CountedItem &item)
{
    const bool isRun = item.reason == CountingReason::WhiteSpace;
    m_sums.at(static_cast<std::size_t>(item.reason)) += isRun ? static_cast<quint64>(item.length) : 1;
}

QByteArray ItemTally::summary(Statistic statistic, quint64 count, const TextRules &rules) const
{
    constexpr qsizetype titleWidth = 11;
    constexpr qsizetype numberWidth = 12;
    QString text = titleOf(statistic).leftJustified(titleWidth)
        + QString::number(count).rightJustified(numberWidth) + u'\n';
    for (std::size_t i = 0; i < m_sums.size(); ++i) {
        const auto reason = static_cast<CountingReason>(i);
        if (isCounted(reason) || m_sums[i] == 0)
            continue;
        text += QString::number(m_sums[i]).rightJustified(titleWidth + numberWidth) + u' '
            + CommandText::tr("not counted: %1").arg(explanationOf(reason, rules)) + u'\n';
    }
    return text.toUtf8();
}
