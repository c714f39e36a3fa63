// SPDX-License-Identifier: MIT
// RandomText makes styled texts of all that a styled text can consist of, with attachments on U+FFFC only:
// the same ones from the same seed.
// Thread: one.  Owner: a test.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <random>

class RandomText {
public:
    explicit RandomText(unsigned seed)
        : m_random(seed)
    {
    }

    /// A text of so many runs at most; few distinct attributes in many of them.
    AttributedString text(size_t mostRuns, size_t longestRun);

private:
    size_t below(size_t end) { return m_random() % end; }
    bool oneIn(size_t count) { return below(count) == 0; }
    template <typename Value, size_t count>
    const Value &oneOf(const Value (&values)[count])
    {
        return values[below(count)];
    }

    double length(double unit);
    QString characters(size_t longest);
    QString name();
    FontAttributes font();
    ParagraphStyle paragraphStyle();
    QString language();
    TextAttributes attributes();

    std::mt19937 m_random;
};
