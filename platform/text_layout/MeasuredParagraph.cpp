// SPDX-License-Identifier: MIT
#include "platform/text_layout/MeasuredParagraph.h"

#include "platform/segmentation/GraphemeClusters.h"
#include "platform/segmentation/LineBreaks.h"

#include <algorithm>

namespace {

// Code units shaped at once: many words, so that cuts between two stretches are rare.
constexpr qsizetype maxRunLength = 2048;

// Code units before a cut that are shaped again, because they were shaped without the text after it.
constexpr qsizetype lookAhead = 64;

// How far around a line's end text is shaped again. A break changes a kerning pair or the form of a letter; a
// longer stretch without a safe place is a word of joined letters, which keep their forms.
constexpr qsizetype maxReshapedLength = 64;

// Converts the advances of a shaped run to points.
class Scale {
public:
    explicit Scale(const TextRun &run)
        : m_pointsPerUnit(run.style.pointSize / run.face->unitsPerEm())
        , m_tracking(run.style.tracking)
    {
    }

    [[nodiscard]] double points(float advance, quint8 flags) const
    {
        return advance * m_pointsPerUnit + (flags & StartsCluster ? m_tracking : 0);
    }

private:
    double m_pointsPerUnit;
    double m_tracking;
};

} // namespace

void MeasuredParagraph::setParagraph(const AttributedString &text, const Paragraph &paragraph)
{
    m_text = paragraph.content(text.string());
    m_itemizer.setParagraph(text, paragraph);
    m_base = 0;
    m_advances.clear();
    m_flags.clear();
    m_runs.clear();
}

void MeasuredParagraph::measureMore()
{
    if (m_itemizer.isAtEnd())
        return;
    const TextRun run = m_itemizer.next(maxRunLength);
    switch (run.kind) {
    case TextRun::Kind::Tab:
        append(0, StartsCluster | TabCharacter);
        break;
    case TextRun::Kind::Attachment:
        append(attachmentAdvance, StartsCluster);
        break;
    case TextRun::Kind::Invisible:
        for (qsizetype at = run.start; at < run.end; ++at) {
            const bool endsLine = isForcedLineBreak(m_text.utf16()[at]);
            append(0, StartsCluster | HangingBlank | (endsLine ? EndsLine : 0));
        }
        break;
    case TextRun::Kind::ExcessMarks:
        for (qsizetype at = run.start; at < run.end; ++at)
            append(0, 0);
        break;
    case TextRun::Kind::Text:
        if (run.face) {
            appendShaped(run);
            return;
        }
        appendFontless(run);
        break;
    }
    m_runs.push_back(run);
}

void MeasuredParagraph::append(double advance, int flags)
{
    m_advances.push_back(advance);
    m_flags.push_back(static_cast<quint8>(flags));
}

void MeasuredParagraph::appendFontless(const TextRun &run)
{
    const QStringView text = m_text.first(run.end);
    for (qsizetype at = run.start; at < run.end;) {
        const qsizetype end = graphemeClusterEnd(text, at);
        const int blank = isHangingBlank(m_text.utf16()[at]) ? HangingBlank : 0;
        const double visible = fontlessAdvance * run.style.pointSize + run.style.tracking;
        append(isDefaultIgnorable(codePointAt(text, at)) ? 0 : visible, StartsCluster | blank);
        while (++at < end)
            append(0, blank);
    }
}

void MeasuredParagraph::appendShaped(TextRun run)
{
    const auto length = static_cast<size_t>(run.end - run.start);
    m_shapedAdvances.resize(length);
    m_shapedFlags.resize(length);
    const ShapingStyle &style = m_shaper.styleOf(run);
    if (m_isByWords)
        m_shaper.shapeByWords(
            style, m_text, run.start, run.end, m_shapedAdvances.data(), m_shapedFlags.data());
    else
        m_shaper.shape(style, m_text, run.start, run.end, m_shapedAdvances.data(), m_shapedFlags.data());
    if (run.isCut) {
        qsizetype end = run.end - lookAhead;
        const auto isSafe = [&](qsizetype position) {
            return (m_shapedFlags[static_cast<size_t>(position - run.start)]
                       & (StartsCluster | UnsafeToBreak))
                == StartsCluster;
        };
        while (end > run.start && !isSafe(end))
            --end;
        if (end > run.start) {
            run.end = end;
            m_itemizer.returnTo(end);
        }
    }
    m_runs.push_back(run);
    const Scale scale(run);
    const size_t first = m_advances.size();
    const auto taken = static_cast<size_t>(run.end - run.start);
    m_advances.resize(first + taken);
    for (size_t i = 0; i < taken; ++i)
        m_advances[first + i] = scale.points(m_shapedAdvances[i], m_shapedFlags[i]);
    m_flags.insert(
        m_flags.end(), m_shapedFlags.begin(), m_shapedFlags.begin() + static_cast<std::ptrdiff_t>(taken));
}

const TextRun &MeasuredParagraph::runAt(qsizetype position) const
{
    const auto behind = std::upper_bound(m_runs.begin(), m_runs.end(), position,
        [](qsizetype wanted, const TextRun &run) { return wanted < run.start; });
    return *(behind - 1);
}

void MeasuredParagraph::discardBefore(qsizetype position)
{
    // Only if it is worth moving the rest, so that every code unit is moved about once.
    constexpr size_t minDiscarded = 4096;
    const size_t count = index(position);
    if (count < minDiscarded || count * 2 < m_advances.size())
        return;
    m_advances.erase(m_advances.begin(), m_advances.begin() + static_cast<std::ptrdiff_t>(count));
    m_flags.erase(m_flags.begin(), m_flags.begin() + static_cast<std::ptrdiff_t>(count));
    m_base = position;
    while (!m_runs.empty() && m_runs.front().end <= position)
        m_runs.pop_front();
}

qsizetype MeasuredParagraph::safePositionFrom(qsizetype position) const
{
    const qsizetype limit = std::min({position + maxReshapedLength, runAt(position).end, measuredEnd()});
    while (position < limit && (flags(position) & (StartsCluster | UnsafeToBreak)) != StartsCluster)
        ++position;
    return position;
}

qsizetype MeasuredParagraph::safePositionBefore(qsizetype position, qsizetype min) const
{
    const qsizetype limit = std::max({position - maxReshapedLength, runAt(position - 1).start, min});
    do {
        --position;
    } while (position > limit && (flags(position) & (StartsCluster | UnsafeToBreak)) != StartsCluster);
    return position;
}

void MeasuredParagraph::startLineAt(qsizetype position, bool isWithinWord)
{
    discardBefore(position);
    if (isWithinWord || position >= measuredEnd() || !(flags(position) & UnsafeToBreak))
        return;
    const TextRun &run = runAt(position);
    const qsizetype end = safePositionFrom(position);
    m_shapedAdvances.resize(static_cast<size_t>(end - position));
    m_shapedFlags.resize(static_cast<size_t>(end - position));
    m_shaper.shape(
        m_shaper.styleOf(run), m_text, position, end, m_shapedAdvances.data(), m_shapedFlags.data());
    const Scale scale(run);
    for (size_t i = 0; i < m_shapedAdvances.size(); ++i) {
        m_advances[index(position) + i] = scale.points(m_shapedAdvances[i], m_shapedFlags[i]);
        m_flags[index(position) + i] = m_shapedFlags[i];
    }
}

double MeasuredParagraph::changeWhenLineEndsAt(qsizetype lineStart, qsizetype end)
{
    if (end >= measuredEnd() || !(flags(end) & UnsafeToBreak))
        return 0;
    const TextRun &run = runAt(end - 1);
    if (run.kind != TextRun::Kind::Text || !run.face)
        return 0;
    const qsizetype start = safePositionBefore(end, lineStart);
    m_shapedAdvances.resize(static_cast<size_t>(end - start));
    m_shapedFlags.resize(static_cast<size_t>(end - start));
    m_shaper.shape(m_shaper.styleOf(run), m_text, start, end, m_shapedAdvances.data(), m_shapedFlags.data());
    qsizetype contentEnd = end;
    while (contentEnd > start && flags(contentEnd - 1) & HangingBlank)
        --contentEnd;
    const Scale scale(run);
    double change = 0;
    for (qsizetype at = start; at < contentEnd; ++at) {
        const auto i = static_cast<size_t>(at - start);
        change += scale.points(m_shapedAdvances[i], m_shapedFlags[i]) - advance(at);
    }
    return change;
}

double MeasuredParagraph::hyphenAdvanceAt(qsizetype position)
{
    const TextRun &run = runAt(position);
    if (!run.face)
        return fontlessAdvance * run.style.pointSize;
    const QStringView hyphen = run.face->source().covers(U'\u2010') ? u"\u2010" : u"-";
    float advance = 0;
    quint8 flags = 0;
    m_shaper.shape(m_shaper.styleOf(run), hyphen, 0, 1, &advance, &flags);
    return Scale(run).points(advance, flags);
}
