// SPDX-License-Identifier: MIT
#include "platform/text_layout/LayoutEngine.h"

#include "platform/logging/LogChannel.h"

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype progressInterval = 65'536; // UTF-16 code units

// The height that the tallest characters of a line need.
struct LineHeight {
    double ascent = 0;
    double descent = 0;
    double gap = 0;

    void add(const TextStyle &style, const FontFace *face)
    {
        const double scale = face ? style.pointSize / face->unitsPerEm() : style.pointSize;
        // Without a font: the proportions of Helvetica.
        ascent = std::max(ascent, (face ? face->ascent() : 0.77) * scale + style.baselineOffset);
        descent = std::max(descent, (face ? face->descent() : 0.23) * scale - style.baselineOffset);
        gap = std::max(gap, (face ? face->lineGap() : 0) * scale);
    }

    [[nodiscard]] double sum() const { return ascent + descent + gap; }
};

// The fraction of a column's free space that is to the left of a line.
double leftShare(TextAlignment alignment, bool isRightToLeft)
{
    switch (alignment) {
    case TextAlignment::Left:
        return 0;
    case TextAlignment::Right:
        return 1;
    case TextAlignment::Center:
        return 0.5;
    case TextAlignment::Natural:
    case TextAlignment::Justified:
        break;
    }
    return isRightToLeft ? 1 : 0;
}

} // namespace

LayoutEngine::LayoutEngine(Shaping shaping)
    : LayoutEngine(std::make_shared<const FontCatalogue>(), shaping)
{
}

LayoutEngine::LayoutEngine(std::shared_ptr<const FontCatalogue> fonts, Shaping shaping)
    : m_fonts(std::move(fonts))
    , m_paragraph(m_fonts, shaping != Shaping::WholeRuns)
    , m_isByPairs(shaping == Shaping::ByPairs)
{
    if (m_fonts.isEmpty())
        LogChannel::standard().notice(u"No usable font found; measuring lines with a fixed character width");
}

double LayoutEngine::heightOf(qsizetype start, qsizetype end, qsizetype separator)
{
    LineHeight height;
    for (qsizetype at = start; at < end;) {
        const TextRun &run = m_paragraph.runAt(at);
        const bool isText = run.kind == TextRun::Kind::Text || !run.style.fonts;
        height.add(run.style, isText ? run.face : run.style.fonts->primary());
        at = run.end;
    }
    if (start == end) {
        const TextStyle style = m_paragraph.styleOfSeparator(separator);
        height.add(style, style.fonts ? style.fonts->primary() : nullptr);
    }
    return height.sum();
}

template <typename Report>
quint64 LayoutEngine::fillLines(
    const AttributedString &text, const Paragraph &paragraph, double columnWidth, Report &&report)
{
    m_paragraph.setParagraph(text, paragraph);
    m_breaks.setParagraph(m_paragraph.text());
    LineBreaker breaker(
        m_paragraph, m_breaks, text.attributesAt(paragraph.start).paragraphStyle, columnWidth);
    const qsizetype contentLength = m_paragraph.text().size();
    quint64 count = 0;
    LineBreaker::Line line{0, true};
    for (qsizetype start = 0; start < contentLength; start = line.end) {
        line = breaker.next(start);
        ++count;
        report(breaker, start, line);
    }
    // If the last line ended in a forced break, the separator is on a line of its own.
    if (line.isForced && paragraph.length > contentLength) {
        ++count;
        report(breaker, contentLength, LineBreaker::Line{contentLength, true});
    }
    return count;
}

LineFragment LayoutEngine::describe(const AttributedString &text, const Paragraph &paragraph,
    LineBreaker &breaker, qsizetype start, const LineBreaker::Line &line)
{
    const ParagraphStyle &style = text.attributesAt(paragraph.start).paragraphStyle;
    const LineBreaker::Extent extent = breaker.extentOf(start, line);
    // In right-to-left paragraphs, indents are measured from the right.
    const bool isRightToLeft = m_paragraph.isRightToLeft();
    const double leftEdge = isRightToLeft ? breaker.columnWidth() - breaker.lineEnd() : extent.leading;
    const double freeSpace = std::max(0.0, breaker.lineEnd() - extent.leading - extent.width);

    LineFragment fragment{};
    fragment.start = paragraph.start + start;
    fragment.length = endOf(paragraph, start, line) - fragment.start;
    fragment.left = leftEdge + freeSpace * leftShare(style.alignment, isRightToLeft);
    fragment.width = extent.width;
    const qsizetype separator = paragraph.start + paragraph.contentLength;
    fragment.height = heightOf(start, line.end, separator) + clampNumber(style.lineSpacing, 0, 10'000);
    return fragment;
}

// In the text; start: in the paragraph.
qsizetype LayoutEngine::endOf(
    const Paragraph &paragraph, qsizetype start, const LineBreaker::Line &line) const
{
    const bool holdsSeparator =
        line.end == m_paragraph.text().size() && (!line.isForced || start == line.end);
    return paragraph.start + (holdsSeparator ? paragraph.length : line.end);
}

void LayoutEngine::layOutParagraph(
    const AttributedString &text, const Paragraph &paragraph, double columnWidth, const Yield &yield)
{
    fillLines(text, paragraph, columnWidth,
        [&](LineBreaker &breaker, qsizetype start, const LineBreaker::Line &line) {
            yield(describe(text, paragraph, breaker, start, line));
        });
}

quint64 LayoutEngine::countLinesOfParagraph(const AttributedString &text, const Paragraph &paragraph,
    double columnWidth, const YieldLine &yield, const Progress &progress)
{
    if (paragraph.contentLength == 0) {
        if (yield)
            yield(paragraph.start, paragraph.end());
        return 1;
    }
    LineFiller::Report report;
    qsizetype next = progressInterval;
    if (progress && paragraph.length > progressInterval) {
        report = [&](qsizetype end) {
            if (end < next) // the text may be laid out twice
                return;
            progress(paragraph.start + end);
            next = end + progressInterval;
        };
    }
    if (m_isByPairs) {
        const std::optional<quint64> count =
            m_filler.countLines(text, paragraph, columnWidth, yield ? &m_lineEnds : nullptr, report);
        if (count && yield) {
            m_lineEnds.back() = paragraph.length; // with the separator
            for (qsizetype start = 0; const qsizetype end : m_lineEnds) {
                yield(paragraph.start + start, paragraph.start + end);
                start = end;
            }
        }
        if (count)
            return *count;
    }
    return fillLines(text, paragraph, columnWidth,
        [&](const LineBreaker &, qsizetype start, const LineBreaker::Line &line) {
            if (report)
                report(line.end);
            if (yield)
                yield(paragraph.start + start, endOf(paragraph, start, line));
        });
}

quint64 LayoutEngine::countLines(const AttributedString &text, double columnWidth, const Progress &progress)
{
    return countLines(text, columnWidth, 0, text.length(), progress);
}

quint64 LayoutEngine::countLines(const AttributedString &text, double columnWidth, qsizetype start,
    qsizetype end, const Progress &progress)
{
    const char16_t *const units = QStringView(text.string()).utf16();
    quint64 count = 0;
    while (start < end) {
        if (units[start] == u'\n') { // an empty paragraph
            ++count;
            ++start;
        } else {
            const Paragraph paragraph = paragraphAt(text.string(), start);
            count += countLinesOfParagraph(text, paragraph, columnWidth, {}, progress);
            start = paragraph.end();
        }
        if (progress)
            progress(start);
    }
    return count;
}
