// SPDX-License-Identifier: MIT
#include "documents/odt/StoryStack.h"

#include "documents/Notes.h"
#include "documents/SymbolFont.h"

#include <utility>

namespace {

bool isXmlSpace(QChar unit)
{
    return unit == u' ' || unit == u'\t' || unit == u'\n' || unit == u'\r';
}

} // namespace

void StoryStack::suspendStory()
{
    m_suspended = std::move(m_stories.back());
    m_stories.pop_back();
}

void StoryStack::resumeStory()
{
    m_stories.push_back(std::move(*m_suspended));
    m_suspended.reset();
}

AttributedString StoryStack::endStory()
{
    finishPending();
    AttributedString text = story().text.build();
    m_stories.pop_back();
    return text;
}

void StoryStack::endTextBox()
{
    const AttributedString text = endStory();
    if (isInParagraph())
        paragraph().anchored.push_back(text);
    else
        story().text.append(text);
}

void StoryStack::endNote(Note kind)
{
    const AttributedString text = endStory();
    if (notesAreText)
        (kind == Note::Footnote ? m_footnotes : m_endnotes).append(text);
}

void StoryStack::beginList(const QByteArray &style)
{
    std::vector<QByteArray> &lists = story().lists;
    lists.push_back(style.isEmpty() && !lists.empty() ? lists.back() : style);
}

void StoryStack::beginCell()
{
    finishPending();
    story().cells.push_back(false);
}

void StoryStack::endCell()
{
    finishPending();
    const bool hasParagraph = story().cells.back();
    story().cells.pop_back();
    if (hasParagraph)
        return;
    // A cell is a line even if it is empty, as in the other formats.
    beginParagraph({});
    endParagraph();
    story().paragraph.reset(); // of a deleted cell
}

void StoryStack::beginParagraph(const QByteArray &style)
{
    story().isParagraphOpen = true;
    const TextFormat &format = m_styles.style(Styles::Family::Paragraph, style).text;
    if (story().paragraph) { // the one that continues here, in its own style
        paragraph().runs = {{format, {}}};
        return;
    }
    Paragraph opened;
    opened.style = style;
    opened.runs.push_back({format, {}});
    story().paragraph = std::move(opened);
}

const ScriptFormats &StoryStack::formatsOf(Run &run)
{
    if (!run.formats)
        run.formats = run.text.scriptFormats();
    return *run.formats;
}

bool StoryStack::isOnPage()
{
    const Paragraph &current = paragraph();
    if (current.isHidden || current.isDeleted)
        return false;
    // A paragraph without any text that is shown disappears with its hidden text.
    const bool isStyleHidden = current.runs.front().text.isHidden.value_or(false);
    return !current.text.isEmpty() || (!current.hasHiddenText && !isStyleHidden);
}

void StoryStack::endParagraph()
{
    story().isParagraphOpen = false;
    if (!story().cells.empty())
        story().cells.back() = true;
    if (!m_isDeleting)
        finishParagraph();
}

void StoryStack::finishPending()
{
    if (!story().paragraph)
        return;
    paragraph().isDeleted = paragraph().text.isEmpty();
    finishParagraph();
}

void StoryStack::finishParagraph()
{
    if (isOnPage()) {
        Paragraph &current = paragraph();
        const ScriptFormats &formats = formatsOf(current.runs.front());
        current.text.append(u"\n", formats);
        const std::vector<QByteArray> &lists = story().lists;
        const Styles::ListPlace place{
            lists.empty() ? QByteArray() : lists.back(), static_cast<int>(lists.size())};
        current.text.appendTo(
            story().text, m_styles.paragraphStyle(current.style, place, formats.ascii().font.pointSize));
    }
    if (!paragraph().isHidden) {
        for (const AttributedString &text : paragraph().anchored)
            story().text.append(text);
    }
    story().paragraph.reset();
}

void StoryStack::beginRun(const QByteArray &style)
{
    Run inner{run().text, {}};
    if (style.isEmpty())
        inner.formats = run().formats;
    else
        inner.text.overlay(m_styles.style(Styles::Family::Text, style).text);
    paragraph().runs.push_back(std::move(inner));
}

void StoryStack::append(QStringView text)
{
    endWhiteSpace();
    if (text.isEmpty() || m_isDeleting)
        return;
    if (!isShown()) {
        paragraph().hasHiddenText = true;
        return;
    }
    const ScriptFormats &formats = formatsOf(run());
    paragraph().text.append(replaceSymbolGlyphs(text.toString(), formats.ascii().font.family), formats);
}

void StoryStack::appendCollapsed(QStringView text)
{
    QString collapsed;
    collapsed.reserve(text.size());
    bool isAfterSpace = paragraph().collapsesSpace;
    for (const QChar unit : text) {
        const bool isSpace = isXmlSpace(unit);
        if (!isSpace || !isAfterSpace)
            collapsed.append(isSpace ? QChar(u' ') : unit);
        isAfterSpace = isSpace;
    }
    append(collapsed);
    paragraph().collapsesSpace = isAfterSpace;
}

AttributedString StoryStack::takeText()
{
    finishPending();
    AttributedStringBuilder &text = story().text;
    text.append(m_footnotes.build());
    text.append(m_endnotes.build());
    return text.build();
}
