// SPDX-License-Identifier: MIT
// FoundItems are the counted and uncounted items of one statistic of a text, to be marked and walked through.
// Thread: any; values.
#pragma once

#include "platform/styled_text/AttributedString.h"
#include "text_statistics/CountedItem.h"

#include <optional>
#include <stop_token>
#include <vector>

class FoundItems {
public:
    /// Beyond that, items are neither marked nor walked through: 12 bytes of memory each.
    static constexpr std::size_t maxCount = 5'000'000;

    FoundItems() = default;
    explicit FoundItems(Statistic statistic)
        : m_statistic(statistic)
    {
    }

    /// In the order of the text; false if there is no room. The item ends below 2^31.
    bool append(const CountedItem &item);

    [[nodiscard]] std::size_t size() const { return m_items.size(); }
    [[nodiscard]] std::size_t countedSize() const { return m_countedSize; }
    [[nodiscard]] bool isEmpty() const { return m_items.empty(); }
    [[nodiscard]] CountedItem at(std::size_t index) const;

    /// The first item that ends behind a position (UTF-16 code units), or starts there; size() if there is
    /// none.
    [[nodiscard]] std::size_t firstFrom(qsizetype position) const;
    /// The item that contains a position.
    [[nodiscard]] std::optional<std::size_t> itemAt(qsizetype position) const;

    /// Whether these are all items of the text.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    struct Item {
        qint32 start;
        qint32 length;
        qint32 reason;
    };

    Statistic m_statistic = Statistic::Words;
    std::vector<Item> m_items;
    std::size_t m_countedSize = 0;
    bool m_isComplete = true;
};

/// What an item is found in: a text and the rules of its count. columnWidth: points.
struct ExplainedText {
    AttributedString text;
    TextRules rules;
    double columnWidth = 0;
};

/// Counts the first part of a text, up to length code units. Takes as long as a count, on any thread; ends
/// early where a stop is requested, or where the items are too many.
FoundItems findItems(
    const ExplainedText &explained, qsizetype length, Statistic statistic, const std::stop_token &stop);
