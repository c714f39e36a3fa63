// SPDX-License-Identifier: MIT
#include "documents/docx/StoryAssembler.h"

namespace {

constexpr QChar paragraphEnd = u'\n';
using Kind = StyleSheet::Kind;

} // namespace

void StoryAssembler::endStory(bool keepsEmptyLast)
{
    if (isInParagraph())
        endParagraph(false);
    finishPending(keepsEmptyLast);
    Story story = std::move(m_stories.back());
    m_stories.pop_back();
    if (m_stories.empty())
        return;
    Story &outer = m_stories.back();
    std::list<AttributedString> &place = outer.paragraph ? outer.paragraph->anchored : outer.finished;
    place.splice(place.end(), story.finished);
}

void StoryAssembler::beginParagraph()
{
    Story &story = m_stories.back();
    if (!story.paragraph)
        story.paragraph.emplace();
    story.isParagraphOpen = true;
    // A continued paragraph has the properties of its last mark.
    story.paragraph->properties = {};
    story.paragraph->mark = {};
    story.paragraph->base.reset();
}

void StoryAssembler::endParagraph(bool continues)
{
    Story &story = m_stories.back();
    story.isParagraphOpen = false;
    const RunProperties &mark = story.paragraph->mark;
    if (!continues && !mark.isRemoved && !isDropCap() && !formatOf(mark).isHidden())
        finishParagraph();
}

bool StoryAssembler::isDropCap()
{
    const ParagraphProperties &direct = paragraph().properties;
    const ParagraphProperties &style = m_styles.styleSheet.style(Kind::Paragraph, direct.style).paragraph;
    return direct.isDropCap.value_or(style.isDropCap.value_or(false));
}

void StoryAssembler::finishPending(bool evenIfEmpty)
{
    Story &story = m_stories.back();
    if (!story.paragraph)
        return;
    if (evenIfEmpty || !story.paragraph->text.isEmpty()) {
        finishParagraph();
        return;
    }
    const std::list<AttributedString> anchored = std::move(story.paragraph->anchored);
    story.paragraph.reset();
    for (const AttributedString &text : anchored)
        emitText(text);
}

void StoryAssembler::finishParagraph()
{
    const RunFormat format = formatOf(paragraph().mark);
    append(QStringView(&paragraphEnd, 1), format);
    const ParagraphStyle style = paragraphStyle(format.ascii().font.pointSize);
    const Paragraph finished = std::move(paragraph());
    Story &story = m_stories.back();
    story.paragraph.reset();
    if (!story.tables.empty())
        story.tables.back().hasParagraphInCell = true;
    if (m_stories.size() == 1) {
        finished.text.appendTo(m_builder, style);
    } else {
        AttributedStringBuilder builder;
        finished.text.appendTo(builder, style);
        emitText(builder.build());
    }
    for (const AttributedString &text : finished.anchored)
        emitText(text);
}

void StoryAssembler::emitText(const AttributedString &text)
{
    if (m_stories.size() == 1)
        m_builder.append(text);
    else
        m_stories.back().finished.push_back(text);
}

void StoryAssembler::insert(const AttributedString &text)
{
    finishPending();
    emitText(text);
    if (Table *innermost = table())
        innermost->hasParagraphInCell = true;
}

const StyleProperties &StoryAssembler::tableStyle()
{
    static const StyleProperties none;
    const Table *innermost = table();
    if (!innermost)
        return none;
    return m_styles.styleSheet.tableStyle(innermost->style, innermost->partsOfRow | innermost->partsOfCell);
}

const CharacterCascade &StoryAssembler::base()
{
    Paragraph &current = paragraph();
    if (!current.base) {
        current.base.emplace(m_styles.styleSheet.defaults().run);
        current.base->addStyle(tableStyle().run);
        current.base->addStyle(m_styles.styleSheet.style(Kind::Paragraph, current.properties.style).run);
    }
    return *current.base;
}

RunFormat StoryAssembler::formatOf(const RunProperties &direct)
{
    CharacterCascade cascade = base();
    cascade.addStyle(m_styles.styleSheet.style(Kind::Character, direct.style).run);
    RunProperties properties = cascade.properties();
    properties.overlay(direct);
    return RunFormat(properties);
}

ParagraphStyle StoryAssembler::paragraphStyle(double pointSize)
{
    const ParagraphProperties &direct = paragraph().properties;
    ParagraphProperties properties = m_styles.styleSheet.defaults().paragraph;
    properties.overlay(tableStyle().paragraph);
    properties.overlay(m_styles.styleSheet.style(Kind::Paragraph, direct.style).paragraph);
    if (direct.list) {
        const ParagraphProperties *level =
            m_styles.numbering.levelOf(*direct.list, direct.listLevel.value_or(0));
        if (level)
            properties.overlay(*level);
    }
    properties.overlay(direct);
    return properties.paragraphStyle(pointSize, m_styles.defaultTabInterval);
}

StoryAssembler::Table *StoryAssembler::table()
{
    std::vector<Table> &tables = m_stories.back().tables;
    return tables.empty() ? nullptr : &tables.back();
}

void StoryAssembler::endTable()
{
    if (table())
        m_stories.back().tables.pop_back();
}

void StoryAssembler::beginRow()
{
    if (Table *innermost = table())
        innermost->partsOfRow = 0;
}

void StoryAssembler::endRow()
{
    if (Table *innermost = table())
        innermost->isRowRemoved = false;
}

void StoryAssembler::beginCell()
{
    finishPending();
    if (Table *innermost = table()) {
        innermost->partsOfCell = 0;
        innermost->hasParagraphInCell = false;
    }
}

void StoryAssembler::endCell()
{
    // A cell has at least one paragraph; the mark of its last one cannot be removed.
    const Table *innermost = table();
    finishPending(innermost && !innermost->hasParagraphInCell);
    if (innermost)
        table()->isCellRemoved = false;
}
