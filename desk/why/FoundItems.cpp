// SPDX-License-Identifier: MIT
#include "desk/why/FoundItems.h"

#include "platform/segmentation/Paragraphs.h"
#include "text_statistics/ColumnCounter.h"

#include <algorithm>

bool FoundItems::append(const CountedItem &item)
{
    if (m_items.size() == maxCount) {
        m_isComplete = false;
        return false;
    }
    m_items.push_back({static_cast<qint32>(item.start), static_cast<qint32>(item.length),
        static_cast<qint32>(item.reason)});
    m_countedSize += item.isCounted() ? 1 : 0;
    return true;
}

CountedItem FoundItems::at(std::size_t index) const
{
    const Item &item = m_items.at(index);
    return {.statistic = m_statistic,
        .start = item.start,
        .length = item.length,
        .reason = static_cast<CountingReason>(item.reason)};
}

std::size_t FoundItems::firstFrom(qsizetype position) const
{
    const auto found = std::partition_point(m_items.begin(), m_items.end(), [position](const Item &item) {
        return item.start + item.length <= position && item.start < position;
    });
    return static_cast<std::size_t>(found - m_items.begin());
}

std::optional<std::size_t> FoundItems::itemAt(qsizetype position) const
{
    const std::size_t index = firstFrom(position);
    return index < size() && m_items[index].start <= position ? std::optional(index) : std::nullopt;
}

FoundItems findItems(
    const ExplainedText &explained, qsizetype length, Statistic statistic, const std::stop_token &stop)
{
    constexpr qsizetype minStep = 262'144; // code units, between two looks at the stop token
    const AttributedString &text = explained.text;
    ColumnCounter counter(explained.rules, explained.columnWidth);
    FoundItems found(statistic);
    bool hasRoom = true;
    for (qsizetype start = 0; start < length && hasRoom && !stop.stop_requested();) {
        qsizetype end = start;
        while (end < length && end - start < minStep)
            end = paragraphAt(text.string(), end).end();
        counter.forEachItem(text, start, end, statistic, [&](const CountedItem &item) {
            // The last paragraph may go on behind what is shown.
            if (item.start < length)
                hasRoom = hasRoom && found.append(item);
        });
        start = end;
    }
    return found;
}
