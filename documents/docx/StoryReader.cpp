// SPDX-License-Identifier: MIT
#include "documents/docx/StoryReader.h"

#include <array>

namespace {

constexpr char16_t noBreakHyphen[] = u"\u2011";
constexpr char16_t softHyphen[] = u"\u00AD";

/// In the order of the digits of w:cnfStyle.
constexpr std::array conditionalParts{TablePart::FirstRow, TablePart::LastRow, TablePart::FirstColumn,
    TablePart::LastColumn, TablePart::OddColumns, TablePart::EvenColumns, TablePart::OddRows,
    TablePart::EvenRows, TablePart::FirstRowLastCell, TablePart::FirstRowFirstCell,
    TablePart::LastRowLastCell, TablePart::LastRowFirstCell};

constexpr std::array conditionalAttributes{"firstRow"_tag, "lastRow"_tag, "firstColumn"_tag, "lastColumn"_tag,
    "oddVBand"_tag, "evenVBand"_tag, "oddHBand"_tag, "evenHBand"_tag, "firstRowLastColumn"_tag,
    "firstRowFirstColumn"_tag, "lastRowLastColumn"_tag, "lastRowFirstColumn"_tag};

TableParts tablePartsOf(const XmlElement &element)
{
    const QByteArrayView digits = valueOf(element).value_or("");
    TableParts parts = 0;
    for (size_t i = 0; i < conditionalParts.size(); ++i) {
        const auto attribute = element.attribute(conditionalAttributes[i]);
        const auto place = static_cast<qsizetype>(i);
        if ((place < digits.size() && digits[place] == '1') || (attribute && booleanOf(attribute)))
            parts |= 1U << static_cast<unsigned>(conditionalParts[i]);
    }
    return parts;
}

} // namespace

void NoteReferences::add(const QByteArray &identifier)
{
    if (contains(identifier))
        return;
    m_places.insert(identifier, static_cast<qsizetype>(m_inOrder.size()));
    m_inOrder.push_back(identifier);
}

StoryReader::StoryReader(const DocumentStyles &styles, StoryNotes &notes, ReadChunk readChunk)
    : m_notes(notes)
    , m_readChunk(std::move(readChunk))
    , m_assembler(styles)
{
}

void StoryReader::startElement(const XmlElement &element)
{
    ++m_depth;
    if (m_skippedDepth > 0)
        return;
    if (const auto space = element.attribute(XmlName{XmlSpace::Xml, "space"_tag}))
        m_spaceScopes.push_back({m_depth, *space == "preserve"});
    switch (mode()) {
    case Mode::Content:
        startContent(element);
        break;
    case Mode::Text:
        break;
    case Mode::ParagraphProperties:
    case Mode::MarkProperties:
    case Mode::RunProperties:
        startInProperties(element);
        break;
    case Mode::Table:
    case Mode::Row:
    case Mode::Cell:
        startInTableProperties(element);
        break;
    }
}

void StoryReader::endElement(XmlName name)
{
    if (!m_spaceScopes.empty() && m_spaceScopes.back().depth == m_depth)
        m_spaceScopes.pop_back();
    if (m_skippedDepth > 0) {
        if (m_skippedDepth == m_depth)
            m_skippedDepth = 0;
        --m_depth;
        return;
    }
    if (!m_scopes.empty() && m_scopes.back().depth == m_depth) {
        if (mode() == Mode::Text)
            endText();
        m_scopes.pop_back();
    } else if (mode() == Mode::Content && name.space == OfficeSpace::Word && m_assembler.isInStory()) {
        // Elements within text or properties have not begun as blocks.
        endBlock(name.tag);
    } else if (mode() == Mode::Content && name.space == OfficeSpace::Math && m_assembler.isInStory()) {
        if (m_formulaParts.endElement(name.tag, m_depth) && m_assembler.isInParagraph())
            m_assembler.requireSpace();
    }
    if (!m_states.empty() && state().depth == m_depth)
        endStory();
    --m_depth;
}

void StoryReader::endBlock(XmlTag tag)
{
    if (m_assembler.isInParagraph()) { // startInline() ignores tables
        if (tag == "p"_tag)
            m_assembler.endParagraph(state().fieldsWithoutResult > 0);
        return;
    }
    if (tag == "tc"_tag)
        m_assembler.endCell();
    else if (tag == "tr"_tag)
        m_assembler.endRow();
    else if (tag == "tbl"_tag)
        m_assembler.endTable();
}

void StoryReader::characters(QByteArrayView text)
{
    if (mode() == Mode::Text && m_skippedDepth == 0)
        m_text.append(text);
}

void StoryReader::startContent(const XmlElement &element)
{
    if (isWord(element)) {
        startWordContent(element);
        return;
    }
    if (element.name().space == OfficeSpace::Math && m_assembler.isInStory())
        startMath(element.tag());
}

void StoryReader::startMath(XmlTag tag)
{
    switch (tag) {
    case "r"_tag:
        state().run = {};
        break;
    case "t"_tag:
        startText();
        break;
    case "rPr"_tag:
    case "ctrlPr"_tag:
        skipElement();
        break;
    default:
        if (m_formulaParts.startElement(tag, m_depth) && m_assembler.isInParagraph())
            m_assembler.requireSpace();
        break;
    }
}

void StoryReader::startWordContent(const XmlElement &element)
{
    if (!m_assembler.isInStory()) {
        if (element.tag() == "body"_tag)
            beginStory();
        else if (element.tag() == "footnote"_tag || element.tag() == "endnote"_tag)
            beginNote(element);
        return;
    }
    const StoryAssembler::Table *table = m_assembler.table();
    if (table && !m_assembler.isInParagraph() && (table->isCellRemoved || table->isRowRemoved)) {
        skipElement();
        return;
    }
    switch (element.tag()) {
    case "del"_tag:
    case "moveFrom"_tag:
    case "delText"_tag:
    case "instrText"_tag:
    case "delInstrText"_tag:
    case "fldData"_tag:
    case "ffData"_tag:
    case "rt"_tag:
    case "rubyPr"_tag:
    case "sdtPr"_tag:
    case "sdtEndPr"_tag:
    case "customXmlPr"_tag:
    case "smartTagPr"_tag:
    case "sectPr"_tag:
    case "tblGrid"_tag:
    case "tblPrEx"_tag:
        skipElement();
        break;
    default:
        if (m_assembler.isInParagraph())
            startInline(element);
        else
            startBlock(element);
        break;
    }
}

void StoryReader::startBlock(const XmlElement &element)
{
    switch (element.tag()) {
    case "p"_tag:
        m_assembler.beginParagraph();
        state().run = {};
        break;
    case "tbl"_tag:
        m_assembler.beginTable();
        break;
    case "tblPr"_tag:
        enter(Mode::Table);
        break;
    case "tr"_tag:
        m_assembler.beginRow();
        break;
    case "trPr"_tag:
        enter(Mode::Row);
        break;
    case "tc"_tag:
        m_assembler.beginCell();
        break;
    case "tcPr"_tag:
        enter(Mode::Cell);
        break;
    case "altChunk"_tag:
        insertChunk(element);
        skipElement();
        break;
    default:
        break;
    }
}

void StoryReader::startInline(const XmlElement &element)
{
    switch (element.tag()) {
    case "pPr"_tag:
        enter(Mode::ParagraphProperties);
        break;
    case "r"_tag:
        state().run = {};
        break;
    case "rPr"_tag:
        enter(Mode::RunProperties);
        break;
    case "t"_tag:
        startText();
        break;
    case "tab"_tag:
    case "ptab"_tag:
        append(u"\t");
        break;
    case "br"_tag:
        appendBreak(element);
        break;
    case "cr"_tag:
        append(lineBreak);
        break;
    case "noBreakHyphen"_tag:
        append(noBreakHyphen);
        break;
    case "softHyphen"_tag:
        append(softHyphen);
        break;
    case "sym"_tag:
        appendSymbol(element);
        break;
    case "fldChar"_tag:
        handleFieldCharacter(element);
        break;
    case "footnoteReference"_tag:
        if (isShown())
            m_notes.footnotes.add(element.attribute("id"_tag).value_or("").toByteArray());
        break;
    case "endnoteReference"_tag:
        if (isShown())
            m_notes.endnotes.add(element.attribute("id"_tag).value_or("").toByteArray());
        break;
    case "txbxContent"_tag:
    case "p"_tag: // not valid in another paragraph, but read as a text box
        if (!isShown()) {
            skipElement();
            break;
        }
        beginStory();
        if (element.tag() == "p"_tag)
            startBlock(element);
        break;
    default:
        break;
    }
}

void StoryReader::startInProperties(const XmlElement &element)
{
    if (!isWord(element))
        return;
    switch (element.tag()) {
    case "rPrChange"_tag:
    case "pPrChange"_tag:
    case "sectPr"_tag:
        skipElement();
        return;
    default:
        break;
    }
    const Theme &theme = m_assembler.theme();
    if (mode() == Mode::RunProperties)
        state().run.direct.read(element, theme);
    else if (mode() == Mode::MarkProperties)
        m_assembler.markProperties().read(element, theme);
    else if (element.tag() == "rPr"_tag)
        enter(Mode::MarkProperties);
    else
        m_assembler.paragraphProperties().read(element);
}

void StoryReader::startInTableProperties(const XmlElement &element)
{
    StoryAssembler::Table *table = m_assembler.table();
    if (!isWord(element) || !table)
        return;
    switch (element.tag()) {
    case "tblPrChange"_tag:
    case "trPrChange"_tag:
    case "tcPrChange"_tag:
        skipElement();
        break;
    case "tblStyle"_tag:
        table->style = valueOf(element).value_or("").toByteArray();
        break;
    case "cnfStyle"_tag:
        (mode() == Mode::Row ? table->partsOfRow : table->partsOfCell) = tablePartsOf(element);
        break;
    case "del"_tag:
        table->isRowRemoved = table->isRowRemoved || mode() == Mode::Row;
        break;
    case "cellDel"_tag:
        table->isCellRemoved = table->isCellRemoved || mode() == Mode::Cell;
        break;
    default:
        break;
    }
}
