// SPDX-License-Identifier: MIT
#include "platform/text_layout/LineFiller.h"

#include "platform/text_layout/AsciiAdvances.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr qsizetype stretchLength = 256; // characters; nearly every line is shorter

// The exact layout adds points, we add font units. In lines of up to this length, the two sums differ by less
// than the margin; a line that ends within it is not decided here.
constexpr qsizetype maxLineLength = 4096;
constexpr double margin = 1e-8; // points
constexpr double maxLineEnd = 2000; // points

constexpr double maxFlow = PairAdvances::limit / 2.0;

// The exact layout shapes pieces of 2048 code units, and cuts them where that changes nothing. Text without
// such a place for half of that is left to it.
constexpr qsizetype maxUnsafeLength = 1024;

bool hangs(char16_t unit)
{
    return isHangingBlank(unit) || isInvisibleControl(unit);
}

} // namespace

LineFiller::LineFiller(FontLibrary &fonts, Shaper &shaper, LineBreaks &breaks)
    : m_text(fonts, shaper)
    , m_breaks(breaks)
{
}

std::optional<quint64> LineFiller::countLines(const AttributedString &text, const Paragraph &paragraph,
    double columnWidth, std::vector<qsizetype> *ends, const Report &report)
{
    const ParagraphStyle &style = text.attributesAt(paragraph.start).paragraphStyle;
    m_edges.emplace(style, columnWidth);
    m_tabStops.emplace(style);
    if (style.direction == WritingDirection::RightToLeft || m_edges->end > maxLineEnd)
        return std::nullopt;
    for (const bool isOneRun : {true, false}) {
        if (!m_text.setParagraph(text, paragraph, isOneRun))
            continue;
        m_breaks.setParagraph(paragraph.content(text.string()));
        const std::optional<quint64> count = fillLines(paragraph, ends, report);
        if (count || m_hasGivenUp)
            return count;
    }
    return std::nullopt;
}

std::optional<quint64> LineFiller::fillLines(
    const Paragraph &paragraph, std::vector<qsizetype> *ends, const Report &report)
{
    m_startsWithinWord = false;
    m_lastSafePlace = 0;
    m_hasGivenUp = false;
    if (ends)
        ends->clear();
    const qsizetype length = m_text.length();
    quint64 count = 0;
    LineBreaker::Line line{0, true};
    for (qsizetype start = 0; start < length; start = line.end) {
        line = nextLine(start);
        checkSafePlaces(line.end);
        if (m_hasGivenUp || m_text.hasFailed())
            return std::nullopt;
        m_text.discardBefore(std::min(line.end, m_lastSafePlace) - 1);
        ++count;
        if (report)
            report(line.end);
        if (ends)
            ends->push_back(line.end);
    }
    // If the last line ended in a forced break, the separator is on a line of its own.
    if (line.isForced && paragraph.length > length) {
        ++count;
        if (ends)
            ends->push_back(length);
    }
    return count;
}

// To be called when the base changes, or the run.
void LineFiller::measureRoom(Stretch &stretch)
{
    const double room = m_edges->end + LineEdges::tolerance - stretch.base;
    const double unitsPerPoint = m_text.run().unitsPerPoint;
    stretch.flow = 0;
    stretch.fitting = (room - margin) * unitsPerPoint;
    stretch.overflowing = (room + margin) * unitsPerPoint;
    if (stretch.overflowing > maxFlow)
        m_hasGivenUp = true;
}

// Adds single characters, up to the one that may not fit or is not plain.
qsizetype LineFiller::addPlain(qsizetype at, Stretch &stretch) const
{
    const PairRun &run = m_text.run();
    if (run.tracking != 0)
        return addSpaced(at, stretch);
    const quint8 *const classes = m_text.classes();
    const int *const advances = m_text.advances();
    const char16_t *const units = m_text.units();
    // Advances are whole numbers. The values that are not advances exceed it, too.
    const int room = static_cast<int>(std::clamp(std::floor(stretch.fitting - stretch.flow), -1.0, maxFlow));
    const qsizetype first = at;
    const qsizetype last = run.end - 1;
    int sum = 0;
    int value = 0; // of the next character
    at += addAsciiAdvances(units + at, last - at, advances, room, sum);
    size_t own = classes[units[at]];
    for (;;) {
        // A stretch at a time, to notice those without an advance.
        const qsizetype stretchStart = at;
        const qsizetype stretchEnd = std::min(last, at + stretchLength);
        const int before = sum;
        while (at < stretchEnd) {
            const size_t next = classes[units[at + 1]];
            value = advances[PairAdvances::indexOf(own, next)];
            if (sum + value > room)
                break;
            sum += value;
            own = next;
            ++at;
        }
        if (at < stretchEnd)
            break;
        stretch.weightless += sum == before ? at - stretchStart : 0;
        if (at < last)
            continue;
        value = advances[PairAdvances::indexOf(own, PairAdvances::endClass)];
        if (sum + value <= room) {
            stretch.flow += sum + value;
            return run.end;
        }
        break;
    }
    // A ligature would change the advance of the character before it.
    if (value >= PairAdvances::limit && at > first)
        sum -= m_text.knownPair(--at);
    stretch.flow += sum;
    return at;
}

// The same for letters that are spaced.
qsizetype LineFiller::addSpaced(qsizetype at, Stretch &stretch) const
{
    const PairRun &run = m_text.run();
    for (int own = m_text.knownPair(at); own < PairAdvances::limit;) {
        const int next = at + 1 < run.end ? m_text.knownPair(at + 1) : 0;
        const double flow = stretch.flow + own + run.tracking;
        if (flow > stretch.fitting || next >= PairAdvances::limit)
            break;
        stretch.flow = flow;
        if (++at == run.end)
            break;
        own = next;
    }
    return at;
}

// Whether the sum may be less exact than margin says.
bool LineFiller::isTooLong(qsizetype start, qsizetype at, const Stretch &stretch)
{
    return at - start - stretch.weightless > maxLineLength;
}

// Blanks hang. Their advances matter only for a tab after them.
void LineFiller::skipBlanks(qsizetype start, qsizetype &at, Stretch &stretch)
{
    if (isTooLong(start, at, stretch)) {
        m_hasGivenUp = true;
        return;
    }
    const PairRun &run = m_text.run();
    const char16_t *const units = m_text.units();
    const qsizetype first = at;
    while (at + 2 < run.end && units[at + 1] == units[at] && units[at + 2] == units[at])
        ++at;
    if (at > first)
        stretch.flow += (m_text.advance(at) + run.tracking) * static_cast<double>(at - first);
}

// Goes past the next character. Returns false if it does not fit.
bool LineFiller::addOne(qsizetype start, qsizetype &at, Stretch &stretch)
{
    const char16_t unit = m_text.units()[at];
    if (unit == u'\t') {
        const bool fits = movePastTab(start, at, stretch);
        at += fits ? 1 : 0;
        return fits;
    }
    if (isForcedLineBreak(unit))
        return false;
    const bool fitted = stretch.flow <= stretch.fitting;
    stretch.flow += m_text.advance(at) + m_text.run().tracking;
    if (stretch.flow > stretch.fitting) {
        if (!hangs(unit)) {
            m_hasGivenUp = m_hasGivenUp || stretch.flow < stretch.overflowing
                || (fitted && isTooLong(start, at, stretch));
            return false;
        }
        if (fitted)
            skipBlanks(start, at, stretch);
    }
    ++at;
    return true;
}

bool LineFiller::movePastTab(qsizetype start, qsizetype at, Stretch &stretch)
{
    // One tab may hang; a second one goes to the next line.
    if (stretch.origin > m_edges->end + LineEdges::tolerance && at > start) {
        stretch.start = at;
        return false;
    }
    const double position = stretch.base + stretch.flow * m_text.run().pointsPerUnit;
    const TabStop stop = m_tabStops->nextAfter(position - margin);
    const bool isCertain = stop == m_tabStops->nextAfter(position + margin);
    const bool fits = stop.position <= m_edges->end + LineEdges::tolerance;
    if (fits && (!isCertain || stop.alignment != TabAlignment::Left || isTooLong(start, at, stretch)))
        m_hasGivenUp = true;
    stretch = {.start = at + 1, .origin = stop.position, .base = stop.position};
    measureRoom(stretch);
    return true;
}

// The character that does not fit into the line, or ends it; absent if all fit.
std::optional<qsizetype> LineFiller::findObstacle(qsizetype start, Stretch &stretch)
{
    if (m_text.startsInChain(start))
        m_hasGivenUp = m_hasGivenUp || !m_startsWithinWord;
    measureRoom(stretch);
    for (qsizetype at = start; at < m_text.length();) {
        if (at >= m_text.run().end) {
            stretch.base += stretch.flow * m_text.run().pointsPerUnit;
            m_text.enter(at);
            measureRoom(stretch);
        }
        if (m_hasGivenUp || m_text.hasFailed())
            return at;
        if (!m_text.isInShapedChain(at))
            at = addPlain(at, stretch);
        if (at < m_text.run().end && !addOne(start, at, stretch))
            return at;
        if (isTooLong(start, at, stretch) && stretch.flow <= stretch.overflowing)
            m_hasGivenUp = true;
    }
    return std::nullopt;
}

// A line that was measured together with the following text may become wider when it is broken: a kerning
// pair is split.
bool LineFiller::fitsWhenBrokenAt(qsizetype start, qsizetype end, const Stretch &stretch)
{
    if (end >= m_text.length() || m_text.isPlainlySafe(end) || !m_text.isUnsafe(end))
        return true;
    // So far back, the exact layout measures again.
    constexpr qsizetype maxReshapedLength = 64;
    for (qsizetype at = end; at > std::max(start, end - maxReshapedLength) && m_text.isUnsafeKerning(at);)
        --at;
    if (m_text.hasFailed() || hangs(m_text.units()[end - 1]))
        return true;
    const double growth = m_text.growthAtLineEnd(end - 1);
    if (growth <= 0)
        return true;
    const double room = m_edges->end + LineEdges::tolerance - stretch.origin;
    const double surplus = m_text.advanceBetween(stretch.start, end) + growth - room;
    if (std::abs(surplus) < margin)
        m_hasGivenUp = true;
    return surplus <= 0;
}

LineBreaker::Line LineFiller::breakWithinWord(qsizetype start, qsizetype obstacle) const
{
    const char16_t *const units = m_text.units();
    qsizetype end = std::max(start + 1, obstacle);
    bool hasTab = false;
    for (; end < m_text.length(); ++end) {
        const bool isTab = units[end] == u'\t';
        if ((!isTab && !hangs(units[end])) || (isTab && std::exchange(hasTab, true)))
            break;
        if (isForcedLineBreak(units[end]))
            return {end + 1, true};
    }
    return {end, false};
}

LineBreaker::Line LineFiller::nextLine(qsizetype start)
{
    const double indent = start == 0 ? m_edges->firstIndent : m_edges->indent;
    Stretch stretch{.start = start, .origin = indent, .base = indent};
    const std::optional<qsizetype> obstacle = findObstacle(start, stretch);
    m_startsWithinWord = false;
    if (!obstacle || m_hasGivenUp || m_text.hasFailed())
        return {m_text.length(), false};
    if (isForcedLineBreak(m_text.units()[*obstacle]))
        return {*obstacle + 1, true};
    // As LineBreaker does.
    constexpr int maxAttempts = 4;
    qsizetype end = m_breaks.lastAtOrBefore(*obstacle);
    for (int attempts = 0;
         attempts < maxAttempts && end > stretch.start && !fitsWhenBrokenAt(start, end, stretch);
         ++attempts) {
        const qsizetype earlier = m_breaks.lastAtOrBefore(end - 1);
        if (earlier <= start)
            break;
        end = earlier;
    }
    end = std::max(end, stretch.start);
    if (end > start)
        return {end, false};
    m_startsWithinWord = true;
    return breakWithinWord(start, *obstacle);
}

void LineFiller::checkSafePlaces(qsizetype end)
{
    while (!m_hasGivenUp && !m_text.hasFailed() && end - m_lastSafePlace > maxUnsafeLength) {
        qsizetype at = m_lastSafePlace + maxUnsafeLength;
        while (at > m_lastSafePlace && m_text.isUnsafe(at))
            --at;
        m_hasGivenUp = at == m_lastSafePlace;
        m_lastSafePlace = at;
    }
}
