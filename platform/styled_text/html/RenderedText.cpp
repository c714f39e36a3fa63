// SPDX-License-Identifier: MIT
#include "platform/styled_text/html/RenderedText.h"

#include <algorithm>

namespace {

/// Code units after which a run goes to the builder even if it goes on.
constexpr qsizetype longestPendingRun = 65'536;

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
    bool hasSpace = false; // collapsed, not written yet
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

void RenderedText::appendSeparator(QChar separator, const SharedAttributes &attributes)
{
    startLine();
    emitText(QStringView(&separator, 1), attributes);
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
    m_requiredLineBreaks = std::max(m_requiredLineBreaks, count);
}

void RenderedText::emitText(QStringView text, const SharedAttributes &attributes)
{
    if (m_requiredLineBreaks > 0)
        emitRequiredLineBreaks(attributes);
    if (m_runAttributes != attributes || m_run.size() > longestPendingRun) {
        flush();
        m_runAttributes = attributes;
    }
    m_run.append(text);
}

/// The first line end belongs to the paragraph that it ends; those of empty paragraphs to what follows them.
void RenderedText::emitRequiredLineBreaks(const SharedAttributes &attributes)
{
    const int count = std::exchange(m_requiredLineBreaks, 0);
    if (!m_runAttributes)
        return;
    const SharedAttributes before = m_runAttributes;
    emitText(u"\n", before);
    if (count > 1)
        emitText(QString(count - 1, u'\n'), attributes);
}

void RenderedText::flush()
{
    if (!m_run.isEmpty())
        m_builder.append(m_run, *m_runAttributes);
    m_run.resize(0);
}

AttributedString RenderedText::build()
{
    flush();
    AttributedString text = m_builder.build();
    *this = {};
    return text;
}
