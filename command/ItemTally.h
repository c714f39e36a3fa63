// SPDX-License-Identifier: MIT
// ItemTally adds up the items of one statistic by their reasons, and prints the sums.
// Thread: one at a time.  Owner: the explain command.
#pragma once

#include "text_statistics/CountedItem.h"

#include <QByteArray>

#include <array>

class ItemTally {
public:
    void add(const CountedItem &item);

    /// Lines with their line ends: the count, and below it how many items were not counted for what reason.
    /// count: of the items that were added.
    [[nodiscard]] QByteArray summary(Statistic statistic, quint64 count, const TextRules &rules) const;

private:
    /// By reason; of white space, the code units.
    std::array<quint64, countingReasonCount> m_sums{};
};
