// SPDX-License-Identifier: MIT
#include "platform/segmentation/LineBreaks.h"

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype none = -1;
constexpr qsizetype never = std::numeric_limits<qsizetype>::max();

// How far back to search for a simple boundary: longer than nearly every word.
constexpr qsizetype maxLookBack = 64;

bool isAsciiLetterOrDigit(char16_t unit)
{
    const int lower = unit | 0x20;
    return (lower >= u'a' && lower <= u'z') || (unit >= u'0' && unit <= u'9');
}

// Letters, digits, and punctuation of classes (IS, EX, CL, CP) that do not forbid a break after following
// spaces.
bool allowsBreakAfterSpace(char16_t unit)
{
    return isAsciiLetterOrDigit(unit) || unit == u',' || unit == u'.' || unit == u';' || unit == u':'
        || unit == u'!' || unit == u'?' || unit == u')';
}

// A boundary in every context: LB18 breaks between a space and AL or NU, and no earlier rule forbids that
// after such a character and a space.
bool isSimpleBoundary(const char16_t *units, qsizetype position)
{
    return position >= 2 && units[position - 1] == u' ' && isAsciiLetterOrDigit(units[position])
        && allowsBreakAfterSpace(units[position - 2]);
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
    m_next = none; // not started: most paragraphs never need ICU
}

// The rules never look behind the boundary that they start from, so a restart there changes nothing.
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
    bool isOneWord = true; // only letters and digits from the simple boundary to the position
    const qsizetype limit = std::max<qsizetype>(2, position - maxLookBack);
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
