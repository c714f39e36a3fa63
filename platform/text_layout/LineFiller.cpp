// SPDX-License-Identifier: MIT
#include "platform/text_layout/LineFiller.h"

#include "platform/segmentation/PlainCharacters.h"
#include "platform/segmentation/ScriptRuns.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr qsizetype blockLength = 16; // characters whose advances are added without a look at the line's end

// The exact layout adds points, we add font units. In lines of up to this length, the two sums differ by less
// than the margin; a line that ends within it is not decided here.
constexpr qsizetype maxLineLength = 4096;
constexpr double margin = 1e-8; // points
constexpr double maxLineEnd = 2000; // points

constexpr double maxFlow = PairAdvances::limit / 2.0;

constexpr size_t maxTables = 24; // of a third of a megabyte each

// The exact layout shapes pieces of 2048 code units, and cuts them where that changes nothing. Text without
// such a place for half of that is left to it.
constexpr qsizetype maxUnsafeLength = 1024;

bool hangs(char16_t unit)
{
    return isHangingBlank(unit) || isInvisibleControl(unit);
}

} // namespace

LineFiller::LineFiller(MeasuredParagraph &measured, LineBreaks &breaks)
    : m_measured(measured)
    , m_breaks(breaks)
{
}

std::optional<quint64> LineFiller::countLines(const AttributedString &text, const Paragraph &paragraph,
    double columnWidth, std::vector<qsizetype> *ends)
{
    const AttributedString::Run run = text.run(text.runIndexAt(paragraph.start));
    const TextAttributes &attributes = text.distinctAttributes()[run.attributesIndex];
    const ParagraphStyle &style = attributes.paragraphStyle;
    const QStringView content = paragraph.content(text.string());
    m_units = content.utf16();
    m_length = content.size();
    m_edges.emplace(style, columnWidth);
    const std::optional<quint32> script = findScript();
    if (run.start + run.length < paragraph.start + m_length
        || style.direction == WritingDirection::RightToLeft || m_edges->end > maxLineEnd || !script
        || !selectStyle(attributes, *script))
        return std::nullopt;
    m_tabStops.emplace(style);
    m_breaks.setParagraph(content);
    m_chain = {};
    m_startsWithinWord = false;
    m_lastSafePlace = 0;
    m_hasGivenUp = false;
    quint64 count = 0;
    LineBreaker::Line line{0, true};
    for (qsizetype start = 0; start < m_length; start = line.end) {
        line = nextLine(start);
        checkSafePlaces(line.end);
        if (m_hasGivenUp)
            return std::nullopt;
        ++count;
        if (ends)
            ends->push_back(line.end);
    }
    // If the last line ended in a forced break, the separator is on a line of its own.
    if (line.isForced && paragraph.length > m_length) {
        ++count;
        if (ends)
            ends->push_back(m_length);
    }
    return count;
}

// The script of the first letter; characters that scripts share take it on. If another one follows, no pair
// with it has an advance.
std::optional<quint32> LineFiller::findScript() const
{
    for (qsizetype at = 0; at < m_length; ++at) {
        const char16_t unit = m_units[at];
        if (unit < 0x80) {
            const int lower = unit | 0x20;
            if (lower >= u'a' && lower <= u'z')
                return scriptOfPlainCharacter(unit);
            continue;
        }
        if (isInvisibleControl(unit))
            continue;
        if (!isPlainCharacter(unit))
            return std::nullopt;
        const quint32 script = scriptOfPlainCharacter(unit);
        if (script != sharedScript)
            return script;
    }
    return sharedScript;
}

bool LineFiller::selectStyle(const TextAttributes &attributes, quint32 script)
{
    if (!m_selection.pairs || m_selection.script != script || m_selection.language != attributes.language
        || m_selection.font != attributes.font) {
        m_selection = {.font = attributes.font, .language = attributes.language, .script = script};
        const TextStyle style = m_measured.resolve(attributes);
        if (!style.fonts || style.tracking < 0)
            return false;
        m_selection.pairs = pairsFor(style, script);
        m_selection.pointsPerUnit = style.pointSize / m_selection.pairs->style().face().unitsPerEm();
        m_selection.tracking = style.tracking / m_selection.pointsPerUnit;
    }
    m_classes = m_selection.pairs->classes();
    m_advances = m_selection.pairs->advances();
    return m_selection.pairs->isUsable();
}

PairAdvances *LineFiller::pairsFor(const TextStyle &style, quint32 script)
{
    if (m_tables.size() >= maxTables)
        m_tables.clear();
    std::unique_ptr<PairAdvances> &pairs = m_tables[{style.fonts, script, style.tracking == 0}];
    if (!pairs) {
        const TextRun run{.start = 0,
            .end = 1,
            .kind = TextRun::Kind::Text,
            .isCut = false,
            .isRightToLeft = false,
            .script = script,
            .face = style.fonts->primary(),
            .style = style};
        Shaper &shaper = m_measured.shaper();
        pairs = std::make_unique<PairAdvances>(*style.fonts, shaper, shaper.styleOf(run));
    }
    return pairs.get();
}

int LineFiller::measurePair(qsizetype at)
{
    if (at + 1 < m_length)
        m_selection.pairs->measure(m_units[at], m_units[at + 1]);
    else
        m_selection.pairs->measureAlone(m_units[at]);
    return knownPair(at);
}

double LineFiller::advance(qsizetype at)
{
    if (!m_chain.holds(at)) {
        const int own = pair(at);
        const bool touchesChain = isJoined(at - 1) || (isJoined(at + 1) && !isApart(m_units[at]));
        if (own < PairAdvances::limit && !touchesChain)
            return own;
        if (own >= PairAdvances::limit && own != PairAdvances::joined) {
            m_hasGivenUp = true;
            return 0;
        }
        loadChain(isInChain(at) ? at : at + 1);
        if (!m_chain.holds(at)) {
            m_hasGivenUp = true;
            return 0;
        }
    }
    return static_cast<double>(m_chain.shaped->advances[static_cast<size_t>(at - m_chain.start)]);
}

// Beyond the neighbours of a chain, nothing affects it, and it affects nothing.
void LineFiller::loadChain(qsizetype at)
{
    m_chain = {};
    qsizetype start = at;
    while (start > 0 && at - start < Chain::maxLength && isInChain(start - 1))
        --start;
    qsizetype end = at + 1;
    while (end < m_length && end - at < Chain::maxLength && isInChain(end))
        ++end;
    if (start > 0 && !isApart(m_units[start - 1]))
        --start;
    const qsizetype shapedEnd = end < m_length && !isApart(m_units[end]) ? end + 1 : end;
    if (shapedEnd - start > Chain::maxLength || m_selection.tracking != 0)
        return;
    const QStringView text(m_units + start, shapedEnd - start);
    const ShapingStyle &style = m_selection.pairs->style();
    CachedWord &slot = m_chains.slotFor(style.number(), text);
    if (!slot.holds(style.number(), text)) {
        slot.style = style.number();
        slot.length = static_cast<quint8>(text.size());
        std::copy_n(text.utf16(), text.size(), slot.text.begin());
        m_measured.shaper().shape(style, text, 0, text.size(), slot.advances.data(), slot.flags.data());
    }
    m_chain = {start, end, &slot};
}

// Whether the text on both sides of a place must be measured again if a line ends there.
bool LineFiller::isUnsafe(qsizetype at)
{
    if (at <= 0 || at >= m_length || isApart(m_units[at - 1]) || isApart(m_units[at]))
        return false;
    if (isInChain(at - 1) || isInChain(at)) {
        loadChain(isInChain(at) ? at : at - 1);
        const qsizetype index = at - m_chain.start;
        if (!m_chain.shaped || index >= m_chain.shaped->length)
            return true;
        const quint8 flags = m_chain.shaped->flags[static_cast<size_t>(index)];
        return (flags & (StartsCluster | UnsafeToBreak)) != StartsCluster;
    }
    return m_selection.pairs->isUnsafe(classAt(at - 1), classAt(at));
}

LineFiller::Stretch LineFiller::stretchAt(qsizetype start, double base)
{
    Stretch stretch{.start = start, .base = base};
    const double room = m_edges->end + LineEdges::tolerance - base;
    stretch.fitting = (room - margin) / m_selection.pointsPerUnit;
    stretch.overflowing = (room + margin) / m_selection.pointsPerUnit;
    if (stretch.overflowing > maxFlow)
        m_hasGivenUp = true;
    return stretch;
}

// Adds whole blocks as long as they fit and consist of pairs with an advance.
qsizetype LineFiller::addBlocks(qsizetype at, Stretch &stretch) const
{
    const double tracking = m_selection.tracking * static_cast<double>(blockLength);
    while (at + blockLength + 1 < m_length) {
        const char16_t *const units = m_units + at;
        int sum = 0;
        size_t own = m_classes[units[0]];
        for (qsizetype i = 0; i < blockLength; ++i) {
            const size_t next = m_classes[units[i + 1]];
            sum += m_advances[own << 8 | next];
            own = next;
        }
        // A chain after the block would change its last advance.
        const int following = m_advances[own << 8 | m_classes[units[blockLength + 1]]];
        const double flow = stretch.flow + sum + tracking;
        if (flow > stretch.fitting || following >= PairAdvances::limit)
            break;
        stretch.flow = flow;
        stretch.weightless += sum == 0 ? blockLength : 0;
        at += blockLength;
    }
    return at;
}

// Adds single characters, up to the one that may not fit or is not plain.
qsizetype LineFiller::addPlain(qsizetype at, Stretch &stretch) const
{
    if (at >= m_length)
        return at;
    for (int own = knownPair(at); own < PairAdvances::limit;) {
        const int next = at + 1 < m_length ? knownPair(at + 1) : 0;
        const double flow = stretch.flow + own + m_selection.tracking;
        if (flow > stretch.fitting || next >= PairAdvances::limit)
            break;
        stretch.flow = flow;
        if (++at == m_length)
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
    const qsizetype first = at;
    while (at + 2 < m_length && m_units[at + 1] == m_units[at] && m_units[at + 2] == m_units[at])
        ++at;
    if (at > first)
        stretch.flow += (advance(at) + m_selection.tracking) * static_cast<double>(at - first);
}

// Goes past the next character. Returns false if it does not fit.
bool LineFiller::addOne(qsizetype start, qsizetype &at, Stretch &stretch)
{
    if (m_units[at] == u'\t') {
        const bool fits = movePastTab(start, at, stretch);
        at += fits ? 1 : 0;
        return fits;
    }
    if (classAt(at) == PairAdvances::forcedBreakClass)
        return false;
    const bool fitted = stretch.flow <= stretch.fitting;
    stretch.flow += advance(at) + m_selection.tracking;
    if (stretch.flow > stretch.fitting) {
        if (!hangs(m_units[at])) {
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
    if (stretch.base > m_edges->end + LineEdges::tolerance && at > start) {
        stretch.start = at;
        return false;
    }
    const double position = stretch.base + stretch.flow * m_selection.pointsPerUnit;
    const TabStop stop = m_tabStops->nextAfter(position - margin);
    const bool isCertain = stop == m_tabStops->nextAfter(position + margin);
    const bool fits = stop.position <= m_edges->end + LineEdges::tolerance;
    if (fits && (!isCertain || stop.alignment != TabAlignment::Left || isTooLong(start, at, stretch)))
        m_hasGivenUp = true;
    stretch = stretchAt(at + 1, stop.position);
    return true;
}

// The character that does not fit into the line, or ends it; absent if all fit.
std::optional<qsizetype> LineFiller::findObstacle(qsizetype start, Stretch &stretch)
{
    qsizetype at = start;
    if (isJoined(start - 1)) {
        loadChain(start);
        m_hasGivenUp = m_hasGivenUp || !m_startsWithinWord;
    }
    while (at < m_length) {
        if (!m_chain.holds(at))
            at = addPlain(addBlocks(at, stretch), stretch);
        if (at < m_length) {
            const bool fits = addOne(start, at, stretch);
            if (m_hasGivenUp || !fits)
                return at;
        }
        if (isTooLong(start, at, stretch) && stretch.flow <= stretch.overflowing)
            m_hasGivenUp = true;
    }
    return std::nullopt;
}

// A line that was measured together with the following text may become wider when it is broken: a kerning
// pair is split.
bool LineFiller::fitsWhenBrokenAt(qsizetype start, qsizetype end, const Stretch &stretch)
{
    if (end >= m_length || !isUnsafe(end))
        return true;
    // So far back, the exact layout measures again.
    constexpr qsizetype maxReshapedLength = 64;
    for (qsizetype at = end; at > std::max(start, end - maxReshapedLength) && isUnsafe(at); --at) {
        if (isInChain(at) || isInChain(at - 1)) {
            m_hasGivenUp = true;
            return true;
        }
    }
    if (isHangingBlank(m_units[end - 1]))
        return true;
    m_selection.pairs->measureAlone(m_units[end - 1]);
    const int alone = m_advances[static_cast<size_t>(classAt(end - 1)) << 8 | PairAdvances::endClass];
    const double growth = alone - pair(end - 1);
    if (growth <= 0)
        return true;
    double flow = growth;
    for (qsizetype at = stretch.start; at < end; ++at)
        flow += advance(at) + m_selection.tracking;
    if (flow > stretch.fitting && flow < stretch.overflowing)
        m_hasGivenUp = true;
    return flow <= stretch.fitting;
}

LineBreaker::Line LineFiller::breakWithinWord(qsizetype start, qsizetype obstacle) const
{
    qsizetype end = std::max(start + 1, obstacle);
    bool hasTab = false;
    for (; end < m_length; ++end) {
        const bool isTab = m_units[end] == u'\t';
        if ((!isTab && !hangs(m_units[end])) || (isTab && std::exchange(hasTab, true)))
            break;
        if (isForcedLineBreak(m_units[end]))
            return {end + 1, true};
    }
    return {end, false};
}

LineBreaker::Line LineFiller::nextLine(qsizetype start)
{
    Stretch stretch = stretchAt(start, start == 0 ? m_edges->firstIndent : m_edges->indent);
    const std::optional<qsizetype> obstacle = findObstacle(start, stretch);
    m_startsWithinWord = false;
    if (!obstacle || m_hasGivenUp)
        return {m_length, false};
    if (isForcedLineBreak(m_units[*obstacle]))
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
    while (!m_hasGivenUp && end - m_lastSafePlace > maxUnsafeLength) {
        qsizetype at = m_lastSafePlace + maxUnsafeLength;
        while (at > m_lastSafePlace && isUnsafe(at))
            --at;
        m_hasGivenUp = at == m_lastSafePlace;
        m_lastSafePlace = at;
    }
}
