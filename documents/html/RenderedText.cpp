// SPDX-License-Identifier: MIT
#include "documents/html/RenderedText.h"

#include <algorithm>

namespace {

/// Code units after which a run is appended to the builder even if it continues.
constexpr qsizetype maxPendingLength = 65'536;

bool isCollapsible(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

} // namespace

void RenderedText::append(QStringView text, WhiteSpace whiteSpace, const SharedAttributes &attributes)
{
    if (text.isEmpty())
        return;
    if (whiteSpace != WhiteSpace::Preserve)
        return appendCollapsing(text, whiteSpace == WhiteSpace::PreserveLineEnds, attributes);
    appendPendingSpace();
    emitText(text, attributes);
    m_isAtLineStart = text.back() == u'\n';
}

void RenderedText::appendCollapsing(QStringView text, bool keepsLineEnds, const SharedAttributes &attributes)
{
    m_collapsed.resize(0);
    bool isAfterSpace = m_isAtLineStart;
    bool hasSpace = false; // collapsed, but not written yet
    const auto start = [&] {
        if (m_collapsed.isEmpty())
            appendPendingSpace();
    };
    for (const QChar character : text) {
        if (keepsLineEnds && character == u'\n') {
            m_pendingSpace.reset();
            m_collapsed.append(character);
            hasSpace = false;
            isAfterSpace = true;
        } else if (isCollapsible(character)) {
            hasSpace = hasSpace || !(isAfterSpace || (m_pendingSpace && m_collapsed.isEmpty()));
        } else {
            start();
            if (hasSpace)
                m_collapsed.append(u' ');
            m_collapsed.append(character);
            hasSpace = false;
            isAfterSpace = false;
        }
    }
    if (!m_collapsed.isEmpty()) {
        emitText(m_collapsed, attributes);
        m_isAtLineStart = isAfterSpace;
    }
    if (hasSpace)
        m_pendingSpace = attributes;
}

void RenderedText::appendPendingSpace()
{
    if (!m_pendingSpace)
        return;
    const SharedAttributes attributes = std::exchange(m_pendingSpace, nullptr);
    emitText(u" ", attributes);
}

void RenderedText::appendLineBreak(const SharedAttributes &attributes)
{
    startLine();
    emitText(u"\n", attributes);
}

void RenderedText::startLine()
{
    m_pendingSpace.reset();
    m_isAtLineStart = true;
}

void RenderedText::placeBox()
{
    appendPendingSpace();
    m_isAtLineStart = false;
}

void RenderedText::requireLineBreaks(int count)
{
    if (!m_isAtCellStart)
        m_requiredLineBreaks = std::max(m_requiredLineBreaks, count);
}

void RenderedText::beginCell()
{
    requireLineBreaks(1);
    m_cellLineEnds = lineEndCount();
    m_requiredLineBreaks = 0;
    m_isAtCellStart = true;
    m_isAtCellEdge = true;
}

void RenderedText::endCell(const SharedAttributes &attributes)
{
    m_requiredLineBreaks = 0;
    if (m_isAtCellEdge || m_last != u'\n') {
        ++m_cellLineEnds;
        m_cellAttributes = attributes;
    }
    m_isAtCellStart = false;
    m_isAtCellEdge = true;
}

void RenderedText::emitText(QStringView text, const SharedAttributes &attributes)
{
    const qsizetype lineEnds = lineEndCount();
    m_requiredLineBreaks = 0;
    m_cellLineEnds = 0;
    m_isAtCellStart = false;
    m_isAtCellEdge = false;
    if (lineEnds > 0)
        emitLineEnds(lineEnds, attributes);
    if (m_runAttributes != attributes || m_run.size() > maxPendingLength) {
        flush();
        m_runAttributes = attributes;
    }
    m_run.append(text);
    m_last = text.back();
}

qsizetype RenderedText::lineEndCount() const
{
    const int alreadyThere = m_isAtCellEdge ? 1 : 0;
    return m_cellLineEnds + (hasText() ? std::max(m_requiredLineBreaks - alreadyThere, 0) : 0);
}

/// The first line end has the attributes of the paragraph that it ends, the others those of the text that
/// follows.
void RenderedText::emitLineEnds(qsizetype count, const SharedAttributes &attributes)
{
    if (hasText()) {
        const SharedAttributes before = m_runAttributes;
        emitText(u"\n", before);
        --count;
    }
    if (count > 0)
        emitText(QString(count, u'\n'), attributes);
}

void RenderedText::flush()
{
    if (!m_run.isEmpty())
        m_builder.append(m_run, *m_runAttributes);
    m_run.resize(0);
}

AttributedString RenderedText::build()
{
    // The text does not end with a line end, but empty cells at the end are lines.
    if (m_cellLineEnds > 1)
        emitLineEnds(std::exchange(m_cellLineEnds, 0) - 1, m_cellAttributes);
    flush();
    AttributedString text = m_builder.build();
    *this = {};
    return text;
}
