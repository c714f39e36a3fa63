// SPDX-License-Identifier: MIT
#include "platform/segmentation/WordScanner.h"

#include "platform/segmentation/Segmenter.h"

#include <algorithm>

namespace {

using enum CharacterClass;
using Fact = TextMasks::WordFact;

quint64 highestBit(quint64 bits)
{
    return bits >> 63;
}

// The positions behind the bits and the extenders that follow them (WB4). carry: whether the word of masks
// before ended so; becomes the same for the next.
quint64 behind(quint64 bits, quint64 extenders, quint64 &carry)
{
    const quint64 next = bits << 1 | carry;
    carry = highestBit(bits);
    if (!extenders)
        return next;
    // Adding its lowest bit to a run of ones clears it and sets the bit above.
    quint64 sum;
    if (__builtin_add_overflow(extenders, next & extenders, &sum))
        carry = 1;
    return (next | sum) & ~extenders;
}

} // namespace

struct WordScanner::Word {
    Word(const TextMasks &masks, qsizetype at, quint64 range)
        : index(at)
        , letters(masks.word(Letter, at) & range)
        , numbers(masks.word(Number, at) & range)
        , unlettered(masks.word(Unlettered, at) & range)
        , joining(letters | numbers | (masks.word(Connector, at) & range))
        , letterMiddles(masks.word(MiddleOfLetters, at) & range)
        , numberMiddles(masks.word(MiddleOfNumbers, at) & range)
        , extenders(masks.word(Extender, at) & range)
        , hangul(masks.word(Hangul, at) & range)
        , signs(masks.word(Sign, at) & range)
    {
    }

    qsizetype index;
    quint64 letters;
    quint64 numbers;
    quint64 unlettered;
    quint64 joining;
    quint64 letterMiddles;
    quint64 numberMiddles;
    quint64 extenders;
    quint64 hangul;
    quint64 signs;
};

void WordScanner::setText(QStringView text, WordTrace *trace)
{
    m_text = text;
    m_trace = trace;
    m_masks.truncate(0);
    m_start = 0;
    m_softUntil = 0;
    m_hardUntil = 0;
    m_carry = {};
    m_openLoneUnits = 0;
}

bool WordScanner::next()
{
    m_start = end();
    m_words = 0;
    m_loneUnits = 0;
    if (m_start >= m_text.size())
        return false;
    const qsizetype length = std::min(TextMasks::maxLength, m_text.size() - m_start);
    m_masks.read(m_text, m_start, length);
    markHebrewQuotes();
    scanWindow(length);
    if (end() >= m_text.size()) {
        m_loneUnits += std::exchange(m_openLoneUnits, 0);
        if (m_trace)
            m_trace->finish();
    }
    return true;
}

void WordScanner::scanWindow(qsizetype length)
{
    qsizetype position = 0;
    while (position < length) {
        const qsizetype hardLimit = std::min(length, m_hardUntil - m_start);
        const qsizetype softLimit = std::min(length, m_softUntil - m_start);
        if (position < hardLimit) {
            countHard(position, hardLimit);
            position = hardLimit;
        } else if (position < softLimit) {
            countSoft(position, softLimit);
            position = softLimit;
        } else {
            const qsizetype next = scanFromBoundary(position, length);
            if (next == position && m_hardUntil <= m_start + next && m_softUntil <= m_start + next)
                break;
            position = next;
        }
    }
    m_masks.truncate(position);
}

// Counts up to the last boundary before something hard, or before the end of the window, and returns it; or
// finds out how far the text without a boundary goes on.
qsizetype WordScanner::scanFromBoundary(qsizetype position, qsizetype length)
{
    m_carry = {};
    m_loneUnits += std::exchange(m_openLoneUnits, 0);
    const qsizetype hard =
        TextMasks::first(position, length, [this](qsizetype index) { return m_masks.word(Hard, index); });
    if (hard < length) {
        const qsizetype start = std::max(position, lastBoundary(position, hard));
        countSoft(position, start);
        startHard(m_start + start, hardEnd(hard, length));
        return start;
    }
    if (m_start + length == m_text.size()) {
        countSoft(position, length);
        return length;
    }
    const qsizetype boundary = lastBoundary(position, length);
    if (boundary > position) {
        countSoft(position, boundary);
        return boundary;
    }
    if (position > 0)
        return position; // the next window starts here
    const Run run = restOfRun(m_start + length);
    const bool hasHebrew =
        TextMasks::first(0, length, [this](qsizetype index) { return m_masks.word(Hebrew, index); }) < length;
    if (run.isHard || hasHebrew)
        startHard(m_start, run.end);
    else
        m_softUntil = run.end;
    return position;
}

// The boundary behind a hard character and those that follow it soon: starting ICU takes as long as some
// words.
qsizetype WordScanner::hardEnd(qsizetype hard, qsizetype length) const
{
    constexpr qsizetype worthStarting = 64;
    for (;;) {
        const qsizetype boundary = firstBoundary(hard + 1, length);
        if (boundary < 0)
            return restOfRun(m_start + length).end;
        const qsizetype end = std::min(boundary + worthStarting, length);
        hard = TextMasks::first(boundary, end, [this](qsizetype index) { return m_masks.word(Hard, index); });
        if (hard == end)
            return m_start + boundary;
    }
}

// Quotes join Hebrew letters (WB7a to WB7c), and nothing else.
void WordScanner::markHebrewQuotes()
{
    quint64 carry = 0;
    for (qsizetype index = 0; index < m_masks.wordCount(); ++index) {
        const quint64 letters = m_masks.word(Hebrew, index);
        if (!letters && !carry)
            continue;
        quint64 next = behind(letters, m_masks.word(Extender, index), carry);
        for (; next; next &= next - 1) {
            const qsizetype position = index * TextMasks::bitsPerWord + std::countr_zero(next);
            if (position >= m_masks.length())
                return;
            const char16_t unit = m_text.utf16()[m_start + position];
            if (unit == u'"' || unit == u'\'')
                m_masks.set(Hard, position);
        }
    }
}

// Whether words never depend on both sides of a position: it follows white space, and no extender.
bool WordScanner::isBoundary(qsizetype position) const
{
    const char16_t *units = m_text.utf16();
    if (position >= m_text.size())
        return true;
    const CharacterClasses before = classesAt(units, m_text.size(), position - 1);
    return before.has(White) && !before.has(Connector)
        && !classesAt(units, m_text.size(), position).has(Extender);
}

// The last boundary in (from, to], or -1.
qsizetype WordScanner::lastBoundary(qsizetype from, qsizetype to) const
{
    const auto blanks = [this](qsizetype index) {
        return m_masks.word(White, index) & ~m_masks.word(Connector, index);
    };
    for (;;) {
        const qsizetype blank = TextMasks::last(from, to, blanks);
        if (blank < 0 || isBoundary(m_start + blank + 1))
            return blank < 0 ? -1 : blank + 1;
        to = blank;
    }
}

// The first boundary behind from, at most to, or -1.
qsizetype WordScanner::firstBoundary(qsizetype from, qsizetype to) const
{
    const auto blanks = [this](qsizetype index) {
        return m_masks.word(White, index) & ~m_masks.word(Connector, index);
    };
    for (;;) {
        const qsizetype blank = TextMasks::first(from, to, blanks);
        if (blank >= to || isBoundary(m_start + blank + 1))
            return blank >= to ? -1 : blank + 1;
        from = blank + 1;
    }
}

// How the text goes on from a position to the next boundary.
WordScanner::Run WordScanner::restOfRun(qsizetype position) const
{
    const char16_t *units = m_text.utf16();
    const qsizetype size = m_text.size();
    bool isHard = false;
    while (!isBoundary(position)) {
        ClassMasks ascii{};
        if (size - position > TextMasks::bitsPerWord)
            readAsciiMasks(units + position, &ascii, 1);
        else
            ascii[notAsciiMask] = 1; // one at a time
        // Boundaries follow white space, and only other characters than ASCII are hard.
        const quint64 other = ascii[notAsciiMask] | ascii[static_cast<size_t>(White)];
        position += std::countr_zero(other);
        if (!(other & 1))
            continue;
        CharacterClasses classes;
        do {
            classes = classesAt(units, size, position);
            isHard = isHard || classes.has(Hard) || classes.has(Hebrew);
            ++position;
        } while (!classes.has(White) && position < size && units[position] >= 0x80);
    }
    return {position, isHard};
}

void WordScanner::countSoft(qsizetype from, qsizetype to)
{
    for (qsizetype index = from / TextMasks::bitsPerWord; index * TextMasks::bitsPerWord < to; ++index)
        countWord(Word(m_masks, index, TextMasks::rangeMask(index, from, to)));
}

void WordScanner::countWord(const Word &word)
{
    const quint64 unitsBehindJoining =
        word.joining << 1 | std::exchange(m_carry.joiningUnit, highestBit(word.joining));
    const quint64 behindJoining = behind(word.joining, word.extenders, m_carry.joining);
    const quint64 letterMiddles = behind(word.letters, word.extenders, m_carry.letter) & word.letterMiddles;
    const quint64 numberMiddles = behind(word.numbers, word.extenders, m_carry.number) & word.numberMiddles;
    const quint64 across = (behind(letterMiddles, word.extenders, m_carry.letterMiddle) & word.letters)
        | (behind(numberMiddles, word.extenders, m_carry.numberMiddle) & word.numbers);
    const quint64 starts = word.joining & ~(behindJoining | across);
    const quint64 behindHangul =
        word.hangul << 1 | std::exchange(m_carry.hangulUnit, highestBit(word.hangul));
    const quint64 hangulStarts = word.hangul & ~behindHangul;
    quint64 &counted = m_masks.word(Fact::Counted, word.index);
    counted |= behindHangul & (word.hangul | word.extenders);
    m_masks.word(Fact::Lettered, word.index) |= (word.joining & ~word.unlettered) | word.hangul;
    if (hangulStarts)
        m_words += TextMasks::countBits(hangulStarts);
    if (word.unlettered || m_carry.isUnlettered) {
        countUnlettered(word, starts, across, word.extenders & unitsBehindJoining);
    } else {
        m_words += TextMasks::countBits(starts);
        counted |= (word.joining & (behindJoining | word.signs)) | (word.extenders & unitsBehindJoining);
        m_masks.word(Fact::CountedAcross, word.index) |= across;
    }
    countLoneUnits(word, starts, hangulStarts);
    if (m_trace) {
        const quint64 allStarts = starts | hangulStarts;
        m_trace->addBits(m_start + word.index * TextMasks::bitsPerWord,
            {.starts = allStarts,
                .continuing = (word.joining | word.hangul) & ~allStarts,
                .extenders = word.extenders,
                .lettered = (word.joining & ~word.unlettered) | word.hangul});
    }
}

// The same where segments begin with connectors and the like: they are words only if a letter follows.
void WordScanner::countUnlettered(const Word &word, quint64 starts, quint64 across, quint64 extended)
{
    if (!m_carry.isUnlettered)
        m_carry.hasLetter = m_carry.hasLetterBehindMiddle = true;
    quint64 counted = 0;
    quint64 countedAcross = 0;
    for (quint64 left = word.joining | extended; left; left &= left - 1) {
        const quint64 bit = left & (~left + 1);
        if (extended & bit) {
            counted |= m_carry.hasLetterBehindMiddle ? bit : 0;
            continue;
        }
        const bool isStart = starts & bit;
        const bool isLettered = !(word.unlettered & bit);
        m_carry.hasLetter = m_carry.hasLetter && !isStart;
        m_words += isLettered && !m_carry.hasLetter ? 1 : 0;
        m_carry.hasLetter = m_carry.hasLetter || isLettered;
        // A sentence may start behind U+202F too, which is both a space and a connector.
        const bool isAcross = (across & bit) || (isLettered && !m_carry.hasLetterBehindMiddle);
        m_carry.hasLetterBehindMiddle =
            isLettered || (m_carry.hasLetterBehindMiddle && !isStart && !isAcross);
        if (isStart)
            continue;
        if (isAcross)
            countedAcross |= m_carry.hasLetter ? bit : 0;
        else if (m_carry.hasLetterBehindMiddle)
            counted |= bit;
    }
    m_masks.word(Fact::Counted, word.index) |= counted | (word.joining & word.signs);
    m_masks.word(Fact::CountedAcross, word.index) |= countedAcross;
    m_carry.isUnlettered = !m_carry.hasLetter || !m_carry.hasLetterBehindMiddle;
}

// Adds the words that begin with a unit other than a sign, and takes off those that go on behind it.
void WordScanner::countLoneUnits(const Word &word, quint64 starts, quint64 hangulStarts)
{
    const quint64 lone = starts & ~(word.unlettered | word.signs);
    const quint64 letters = lone & word.letters;
    const quint64 numbers = lone & word.numbers;
    const quint64 behindLetter = letters << 1 | std::exchange(m_carry.loneLetter, highestBit(letters));
    const quint64 behindNumber = numbers << 1 | std::exchange(m_carry.loneNumber, highestBit(numbers));
    const quint64 behindHangul =
        hangulStarts << 1 | std::exchange(m_carry.loneHangul, highestBit(hangulStarts));
    const quint64 joined = ((behindLetter | behindNumber) & (word.joining | word.extenders))
        | (behindHangul & (word.hangul | word.extenders));
    const quint64 acrossLetters =
        behind(behindLetter & word.letterMiddles, word.extenders, m_carry.loneLetterMiddle) & word.letters;
    const quint64 acrossNumbers =
        behind(behindNumber & word.numberMiddles, word.extenders, m_carry.loneNumberMiddle) & word.numbers;
    m_openLoneUnits += TextMasks::countBits(lone | hangulStarts)
        - TextMasks::countBits(joined | acrossLetters | acrossNumbers);
}

void WordScanner::startHard(qsizetype start, qsizetype end)
{
    if (!m_iterator)
        m_iterator.emplace(BreakKind::Word);
    m_iterator->setText(m_text.sliced(start, end - start));
    m_hardStart = start;
    m_hardUntil = end;
    m_segmentStart = start;
    m_segmentEnd = hardSegmentEnd();
}

qsizetype WordScanner::hardSegmentEnd()
{
    const qsizetype boundary = m_iterator->next();
    return boundary < 0 ? m_hardUntil : m_hardStart + boundary;
}

void WordScanner::countHard(qsizetype from, qsizetype to)
{
    const qsizetype end = m_start + to;
    markInside(m_start + from, std::min(m_segmentStart, end)); // the rest of a segment
    while (m_segmentStart < end) {
        countSegment();
        markInside(m_segmentStart + 1, std::min(m_segmentEnd, end));
        m_segmentStart = std::exchange(m_segmentEnd, hardSegmentEnd());
    }
}

void WordScanner::countSegment()
{
    const auto isHardAt = [this](qsizetype position) {
        return classesAt(m_text.utf16(), m_text.size(), position).has(Hard);
    };
    // A dictionary looks at all characters around.
    if (m_segmentStart > m_hardStart && isHardAt(m_segmentStart - 1) && isHardAt(m_segmentStart))
        markInside(m_segmentStart, m_segmentStart + 1);
    const QStringView segment = m_text.sliced(m_segmentStart, m_segmentEnd - m_segmentStart);
    if (!isWord(segment))
        return;
    ++m_words;
    if (m_trace)
        m_trace->addWord(m_segmentStart, m_segmentEnd);
    const bool isLone = segment.size() == 1 && !isEnglishWordOfOneLetter(segment.utf16()[0]);
    m_loneUnits += isLone ? 1 : 0;
    m_masks.set(isLone ? Fact::Lettered : Fact::Counted, m_segmentStart - m_start);
}

void WordScanner::markInside(qsizetype from, qsizetype to)
{
    for (qsizetype position = from; position < to; ++position)
        m_masks.set(Fact::Inside, position - m_start);
}
