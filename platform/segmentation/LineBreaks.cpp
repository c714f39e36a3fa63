// SPDX-License-Identifier: MIT
#include "platform/segmentation/LineBreaks.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr qsizetype none = -1;
constexpr qsizetype never = std::numeric_limits<qsizetype>::max();

// How far back to search for a simple boundary: longer than nearly every word.
constexpr qsizetype maxLookBack = 64;

// Of ASCII characters.
enum EnglishText : quint8 {
    InWord = 1, // letters and digits: AL and NU
    FollowsWord = 2, // IS and EX
};

constexpr auto englishText = [] {
    std::array<quint8, 128> table{};
    for (size_t lower = 'a'; lower <= 'z'; ++lower)
        table[lower] = table[lower - 'a' + 'A'] = InWord;
    for (size_t digit = '0'; digit <= '9'; ++digit)
        table[digit] = InWord;
    for (const char16_t mark : {u',', u'.', u':', u';', u'!', u'?'})
        table[mark] = FollowsWord;
    return table;
}();

bool isEnglish(char16_t unit, int kinds)
{
    return unit < englishText.size() && (englishText[unit] & kinds) != 0;
}

} // namespace

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

LineBreaks::Class LineBreaks::classOf(char16_t unit)
{
    switch (u_getIntPropertyValue(unit, UCHAR_LINE_BREAK)) {
    case U_LB_SPACE:
        return Class::Space;
    case U_LB_ALPHABETIC:
    case U_LB_AMBIGUOUS: // LB1
    case U_LB_UNKNOWN:
        return Class::Letter;
    case U_LB_NUMERIC:
        return Class::Digit;
    case U_LB_IDEOGRAPHIC:
    case U_LB_H2: // among these classes, LB26 and LB27 change nothing
    case U_LB_H3:
        return Class::Ideograph;
    case U_LB_OPEN_PUNCTUATION:
        return Class::Open;
    case U_LB_CLOSE_PUNCTUATION:
    case U_LB_CLOSE_PARENTHESIS:
        return Class::Close;
    case U_LB_QUOTATION:
        return Class::Quote;
    case U_LB_INFIX_NUMERIC:
        return Class::Infix;
    case U_LB_HYPHEN:
        return Class::Hyphen;
    case U_LB_EXCLAMATION:
    case U_LB_INSEPARABLE:
    case U_LB_NONSTARTER:
    case U_LB_CONDITIONAL_JAPANESE_STARTER:
        return Class::Follower;
    default:
        return Class::Other;
    }
}

LineBreaks::Class LineBreaks::classAt(qsizetype position)
{
    return m_classes.at(m_text.utf16()[position]);
}

// Whether lines never break between two adjacent characters, whatever is around them.
bool LineBreaks::areJoined(Class first, Class second)
{
    const auto isAlphanumeric = [](Class own) { return own == Class::Letter || own == Class::Digit; };
    if (first == Class::Other || first == Class::Space)
        return false; // among them the end of a line and U+200B, after which every line breaks
    switch (second) {
    case Class::Close:
    case Class::Quote:
    case Class::Infix:
    case Class::Hyphen:
    case Class::Follower:
        return true; // LB13, LB19, LB21, LB22
    case Class::Letter:
    case Class::Digit:
        if (isAlphanumeric(first))
            return true; // LB23, LB25, LB28
        break;
    default:
        break;
    }
    return first == Class::Open || (first == Class::Quote && second != Class::Space)
        || (first == Class::Infix && second == Class::Letter); // LB14, LB19, LB29
}

bool LineBreaks::isJoined(qsizetype position)
{
    const Class first = classAt(position - 1);
    const Class second = classAt(position);
    if (areJoined(first, second))
        return true;
    // LB25: 3,000
    return first == Class::Infix && second == Class::Digit && position >= 2
        && classAt(position - 2) == Class::Digit;
}

// A boundary in every context: by LB18 after a space, or LB31.
bool LineBreaks::isSimpleBoundary(qsizetype position)
{
    const Class second = classAt(position);
    if (second == Class::Other || second == Class::Space)
        return false;
    Class first = classAt(position - 1);
    if (first == Class::Space) {
        const qsizetype limit = std::max<qsizetype>(0, position - maxLookBack);
        qsizetype before = position - 2;
        while (before >= limit && classAt(before) == Class::Space)
            --before;
        if (before < limit)
            return false;
        first = classAt(before);
        const bool startsWord =
            second == Class::Letter || second == Class::Digit || second == Class::Ideograph;
        switch (first) {
        case Class::Letter:
        case Class::Digit:
        case Class::Ideograph:
        case Class::Infix:
        case Class::Close:
        case Class::Follower:
            return startsWord || second == Class::Quote || second == Class::Open;
        case Class::Quote:
            return startsWord; // LB15 forbids a break before OP
        default:
            return false;
        }
    }
    if (second == Class::Ideograph)
        return first == Class::Ideograph || first == Class::Close || first == Class::Follower;
    // LB21: a hyphen inside a word
    return first == Class::Hyphen && second == Class::Letter && position >= 2
        && classAt(position - 2) == Class::Letter;
}

// The start of an English word, to which the character at a position belongs or which it follows; otherwise
// none. What isSimpleBoundary() and isJoined() know of such text, in less time.
qsizetype LineBreaks::startOfEnglishWord(qsizetype position) const
{
    const char16_t *const units = m_text.utf16();
    qsizetype at = position;
    if (at > 0 && isEnglish(units[at], FollowsWord))
        --at;
    const qsizetype limit = std::max<qsizetype>(1, position - maxLookBack);
    while (at > limit && isEnglish(units[at], InWord))
        --at;
    const bool isStart = at > 0 && at < position && units[at] == u' ' && isEnglish(units[at + 1], InWord);
    return isStart && isEnglish(units[at - 1], InWord | FollowsWord) ? at + 1 : none;
}

qsizetype LineBreaks::lastAtOrBefore(qsizetype position)
{
    if (position >= m_text.size())
        return m_text.size();
    if (const qsizetype start = startOfEnglishWord(position); start != none)
        return start;
    if (m_last <= position && position < m_next)
        return m_last;
    bool isOneWord = true; // no break from the simple boundary to the position
    const qsizetype limit = std::max<qsizetype>(1, position - maxLookBack);
    for (qsizetype at = position; at >= limit; --at) {
        if (!isSimpleBoundary(at)) {
            isOneWord = isOneWord && isJoined(at);
            continue;
        }
        if (isOneWord)
            return at;
        if (m_next == none || at > m_next || at < m_last)
            restartAt(at);
        break;
    }
    if (m_next == none)
        restartAt(0);
    readUpTo(position);
    return m_last <= position ? m_last : none;
}
