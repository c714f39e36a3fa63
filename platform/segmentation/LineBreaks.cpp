// SPDX-License-Identifier: MIT
#include "platform/segmentation/LineBreaks.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype none = -1;
constexpr qsizetype never = std::numeric_limits<qsizetype>::max();

// How far back a simple boundary is looked for: longer than nearly every word.
constexpr qsizetype lookBack = 64;

bool isAsciiLetterOrDigit(char16_t unit)
{
    const int lower = unit | 0x20;
    return (lower >= u'a' && lower <= u'z') || (unit >= u'0' && unit <= u'9');
}

// Letters, digits, and punctuation whose classes (IS, EX, CL, CP) forbid no break behind spaces that follow.
bool allowsBreakBehindSpace(char16_t unit)
{
    return isAsciiLetterOrDigit(unit) || unit == u',' || unit == u'.' || unit == u';' || unit == u':'
        || unit == u'!' || unit == u'?' || unit == u')';
}

// A boundary whatever stands around it: LB18 breaks between a space and AL or NU, and none of the rules
// before LB18 says otherwise when such a character stands before the space.
bool isSimpleBoundary(const char16_t *units, qsizetype position)
{
    return position >= 2 && units[position - 1] == u' ' && isAsciiLetterOrDigit(units[position])
        && allowsBreakBehindSpace(units[position - 2]);
}

} // namespace

bool isForcedLineBreak(char16_t unit)
{
    return unit == u'\u000B' || unit == u'\u000C' || unit == u'\u0085' || unit == u'\u2028'
        || unit == u'\u2029';
}

void LineBreaks::setParagraph(QStringView text)
{
    m_text = text;
    m_base = 0;
    m_last = 0;
    m_next = none; // not begun: most paragraphs never need ICU
}

// The rules look at no character before the boundary that they start from, so a restart at one changes
// nothing.
void LineBreaks::restartAt(qsizetype boundary)
{
    m_base = boundary;
    m_last = boundary;
    m_iterator.setText(m_text.sliced(boundary));
    const qsizetype first = m_iterator.next();
    m_next = first < 0 ? never : boundary + first;
}

void LineBreaks::readUpTo(qsizetype position)
{
    while (m_next <= position) {
        m_last = m_next;
        const qsizetype next = m_iterator.next();
        m_next = next < 0 ? never : m_base + next;
    }
}

qsizetype LineBreaks::lastAtOrBefore(qsizetype position)
{
    const char16_t *units = m_text.utf16();
    if (position >= m_text.size())
        return m_text.size();
    bool isOneWord = true; // letters and digits from the simple boundary up to and with the position
    const qsizetype limit = std::max<qsizetype>(2, position - lookBack);
    for (qsizetype at = position; at >= limit; --at) {
        if (!isSimpleBoundary(units, at)) {
            isOneWord = isOneWord && isAsciiLetterOrDigit(units[at]);
            continue;
        }
        if (isOneWord)
            return at; // LB23, LB25 and LB28 keep them together
        if (m_next == none || at > m_next || at < m_last)
            restartAt(at);
        break;
    }
    if (m_next == none)
        restartAt(0);
    readUpTo(position);
    return m_last <= position ? m_last : none;
}
