// SPDX-License-Identifier: MIT
#include "platform/text_layout/LineBreaker.h"

#include "platform/segmentation/GraphemeClusters.h"
#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double maxLength = 1e7; // points: more than two miles

constexpr double defaultTabInterval = 28; // points
constexpr double minTabInterval = 0.1; // keeps the number of stops in any column small
constexpr double maxTabInterval = 1e6;

constexpr double tolerance = LineEdges::tolerance;

constexpr char16_t softHyphen = 0x00AD;

bool isDigit(char16_t unit)
{
    return QChar::isDigit(unit);
}

double usableInterval(double interval)
{
    return interval >= minTabInterval ? std::min(interval, maxTabInterval) : defaultTabInterval;
}

} // namespace

TabStops::TabStops(const ParagraphStyle &style)
    : m_stops(style.tabStops)
    , m_interval(usableInterval(style.defaultTabInterval))
{
}

TabStop TabStops::nextAfter(double position) const
{
    const double behind = position + tolerance;
    const auto named = std::upper_bound(m_stops.begin(), m_stops.end(), behind,
        [](double wanted, const TabStop &stop) { return wanted < stop.position; });
    if (named != m_stops.end() && std::isfinite(named->position))
        return *named;
    return {(std::floor(behind / m_interval) + 1) * m_interval, TabAlignment::Left};
}

LineEdges::LineEdges(const ParagraphStyle &style, double width)
    : firstIndent(clampNumber(style.firstLineHeadIndent, 0, maxLength))
    , indent(clampNumber(style.headIndent, 0, maxLength))
    , columnWidth(clampNumber(width, 0, maxLength))
    , end(columnWidth - clampNumber(style.tailIndent, 0, maxLength))
{
}

LineBreaker::LineBreaker(
    MeasuredParagraph &paragraph, LineBreaks &breaks, const ParagraphStyle &style, double columnWidth)
    : m_paragraph(paragraph)
    , m_breaks(breaks)
    , m_tabStops(style)
    , m_edges(style, columnWidth)
{
}

double LineBreaker::Pen::positionAfter(double advance, double lineEnd) const
{
    const double unaligned = base + advance;
    switch (alignment) {
    case TabAlignment::Right:
        return std::max(unaligned, alignedAt);
    case TabAlignment::Center:
        return std::max(unaligned, std::min(alignedAt + advance / 2, lineEnd));
    case TabAlignment::Left:
    case TabAlignment::Decimal: // its base already accounts for the alignment
        break;
    }
    return unaligned;
}

double LineBreaker::Pen::contentEnd(double lineEnd) const
{
    return hasContent ? positionAfter(content, lineEnd) : endOfEarlierContent;
}

LineBreaker::Pen LineBreaker::penAtStart(qsizetype start) const
{
    Pen pen;
    pen.base = start == 0 ? m_edges.firstIndent : m_edges.indent;
    pen.endOfEarlierContent = pen.base;
    return pen;
}

void LineBreaker::measureUpTo(qsizetype position)
{
    while (m_paragraph.measuredEnd() < position)
        m_paragraph.measureMore();
}

// The integer part of a number after a decimal tab ends at the last point or comma: which of the two is the
// decimal separator depends on the writer's language, which is unknown.
double LineBreaker::advanceToDecimalSeparator(qsizetype start)
{
    constexpr qsizetype maxNumberLength = 64;
    const QStringView text = m_paragraph.text();
    const qsizetype limit = std::min(text.size(), start + maxNumberLength);
    measureUpTo(limit);
    double advance = 0;
    double found = -1;
    for (qsizetype at = start; at < limit && !(m_paragraph.flags(at) & (TabCharacter | EndsLine)); ++at) {
        const char16_t unit = text.utf16()[at];
        const bool isSeparator = unit == u'.' || unit == u',';
        const bool isWithinNumber = at > start && isDigit(text.utf16()[at - 1]) && at + 1 < text.size()
            && isDigit(text.utf16()[at + 1]);
        if (isSeparator && isWithinNumber)
            found = advance;
        else if (found >= 0 && !isDigit(unit))
            return found;
        advance += m_paragraph.advance(at);
    }
    return found >= 0 ? found : advance;
}

void LineBreaker::movePastTab(Pen &pen, qsizetype tab)
{
    const double position = pen.positionAfter(pen.flow, m_edges.end);
    const double contentEnd = pen.contentEnd(m_edges.end);
    const TabStop stop = m_tabStops.nextAfter(position);
    // A tab past the line's end hangs like other blanks; nothing can be aligned there.
    const bool fits = stop.position <= m_edges.end + tolerance;
    pen = {};
    pen.base = stop.position;
    pen.endOfEarlierContent = contentEnd;
    if (!fits || stop.alignment == TabAlignment::Left)
        return;
    if (stop.alignment == TabAlignment::Decimal) {
        pen.base = std::max(position, stop.position - advanceToDecimalSeparator(tab + 1));
        return;
    }
    pen.base = position;
    pen.alignedAt = stop.position;
    pen.alignment = stop.alignment;
}

LineBreaker::Obstacle LineBreaker::findObstacle(qsizetype start)
{
    Pen pen = penAtStart(start);
    qsizetype lastTabEnd = start;
    for (qsizetype at = start; at < m_paragraph.text().size(); ++at) {
        if (at >= m_paragraph.measuredEnd())
            m_paragraph.measureMore();
        const quint8 flags = m_paragraph.flags(at);
        if (flags & EndsLine)
            return {at, Obstacle::Kind::ForcedBreak, lastTabEnd};
        if (flags & TabCharacter) {
            // One tab may hang; a second one goes to the next line.
            if (pen.base > m_edges.end + tolerance && at > start)
                return {at, Obstacle::Kind::NoRoom, at};
            movePastTab(pen, at);
            lastTabEnd = at + 1;
            continue;
        }
        pen.flow += m_paragraph.advance(at);
        // Text aligned to a tab stop never starts before the pen's base.
        if (!(flags & HangingBlank) && pen.base + pen.flow > m_edges.end + tolerance)
            return {at, Obstacle::Kind::NoRoom, lastTabEnd};
    }
    return {m_paragraph.text().size(), Obstacle::Kind::End, lastTabEnd};
}

LineBreaker::Pen LineBreaker::penAt(qsizetype start, qsizetype end)
{
    Pen pen = penAtStart(start);
    for (qsizetype at = start; at < end; ++at) {
        const quint8 flags = m_paragraph.flags(at);
        if (flags & TabCharacter) {
            movePastTab(pen, at);
            continue;
        }
        pen.flow += m_paragraph.advance(at);
        if (!(flags & HangingBlank)) {
            pen.content = pen.flow;
            pen.hasContent = true;
        }
    }
    return pen;
}

// A line that was measured together with the following text may become wider when it is broken: a kerning
// pair is split, or a hyphen appears.
double LineBreaker::growthWhenBrokenAt(qsizetype start, qsizetype end)
{
    const double growth = m_paragraph.changeWhenLineEndsAt(start, end);
    const bool hasHyphen =
        end < m_paragraph.text().size() && m_paragraph.text().utf16()[end - 1] == softHyphen;
    return hasHyphen ? growth + m_paragraph.hyphenAdvanceAt(end - 1) : growth;
}

bool LineBreaker::fitsWhenBrokenAt(qsizetype start, qsizetype end)
{
    const double growth = growthWhenBrokenAt(start, end);
    if (growth <= 0)
        return true;
    const Pen pen = penAt(start, end);
    return pen.contentEnd(m_edges.end) + growth <= m_edges.end + tolerance;
}

// Returns start if there is none.
qsizetype LineBreaker::opportunityBefore(const Obstacle &obstacle, qsizetype start)
{
    // It is rare that more than one opportunity does not fit; after this many the line may be slightly too
    // wide.
    constexpr int maxAttempts = 4;
    qsizetype end = m_breaks.lastAtOrBefore(obstacle.position);
    for (int attempts = 0;
         attempts < maxAttempts && end > obstacle.lastTabEnd && !fitsWhenBrokenAt(start, end); ++attempts) {
        const qsizetype earlier = m_breaks.lastAtOrBefore(end - 1);
        if (earlier <= start)
            break;
        end = earlier;
    }
    return std::max(end, obstacle.lastTabEnd);
}

LineBreaker::Line LineBreaker::breakWithinWord(qsizetype start, qsizetype obstacle)
{
    const QStringView text = m_paragraph.text();
    qsizetype end = graphemeClusterEnd(text, start);
    while (end < obstacle) {
        const qsizetype next = graphemeClusterEnd(text, end);
        if (next > obstacle)
            break;
        end = next;
    }
    // Blanks hang, and a line end belongs to its line, even if no text fitted.
    measureUpTo(std::min(end + 1, text.size()));
    bool hasTab = false;
    while (end < text.size() && m_paragraph.flags(end) & (HangingBlank | TabCharacter)) {
        if (m_paragraph.flags(end) & TabCharacter && std::exchange(hasTab, true))
            break;
        ++end;
        if (m_paragraph.flags(end - 1) & EndsLine)
            return {end, true};
        measureUpTo(std::min(end + 1, text.size()));
    }
    return {end, false};
}

LineBreaker::Line LineBreaker::next(qsizetype start)
{
    m_paragraph.startLineAt(start, m_startsWithinWord);
    const Obstacle obstacle = findObstacle(start);
    Line line{obstacle.position, false};
    m_startsWithinWord = false;
    switch (obstacle.kind) {
    case Obstacle::Kind::End:
        return line;
    case Obstacle::Kind::ForcedBreak:
        line = {obstacle.position + 1, true};
        break;
    case Obstacle::Kind::NoRoom:
        line.end = opportunityBefore(obstacle, start);
        if (line.end <= start) {
            line = breakWithinWord(start, obstacle.position);
            m_startsWithinWord = true;
        }
        break;
    }
    return line;
}

LineBreaker::Extent LineBreaker::extentOf(qsizetype start, const Line &line)
{
    const Pen pen = penAt(start, line.end);
    const double leading = penAtStart(start).base;
    const double growth = line.isForced ? 0 : growthWhenBrokenAt(start, line.end);
    return {leading, std::max(0.0, pen.contentEnd(m_edges.end) + growth - leading)};
}
