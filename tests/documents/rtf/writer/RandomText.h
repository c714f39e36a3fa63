// SPDX-License-Identifier: MIT
// RandomText generates styled texts with all kinds of attributes, and with attachments on U+FFFC only. Equal
// seeds generate equal texts.
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

    /// A text with few distinct attributes.
    AttributedString text(size_t maxRuns, size_t maxRunLength);

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
