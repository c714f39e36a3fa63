// SPDX-License-Identifier: MIT
#include "documents/docx/StoryReader.h"

#include "documents/SymbolFont.h"
#include "documents/docx/Measures.h"

#include <array>

namespace {

constexpr char16_t lineBreak[] = u"\u2028";
constexpr char16_t pageBreak[] = u"\u000C";
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
    const QByteArrayView digits = element.value().value_or("");
    TableParts parts = 0;
    for (size_t i = 0; i < conditionalParts.size(); ++i) {
        const auto attribute = element.attribute(conditionalAttributes[i]);
        const auto place = static_cast<qsizetype>(i);
        if ((place < digits.size() && digits[place] == '1') || (attribute && truthOf(attribute)))
            parts |= 1U << static_cast<unsigned>(conditionalParts[i]);
    }
    return parts;
}

bool isXmlSpace(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// Replaces the private characters of the font Symbol by the characters that they show. Text in other fonts
/// is unchanged.
QString replaceSymbolGlyphs(QString text, const QString &family)
{
    constexpr char16_t firstGlyph = symbolGlyphBase + 0x20;
    constexpr char16_t lastGlyph = symbolGlyphBase + 0xFF;
    if (!isSymbolFamily(family))
        return text;
    for (QChar &unit : text) {
        if (unit.unicode() >= firstGlyph && unit.unicode() <= lastGlyph)
            unit = symbolFontCharacter(static_cast<uchar>(unit.unicode() - symbolGlyphBase));
    }
    return text;
}

/// The character for a code of w:sym. For a symbol font, Word stores private characters and some other
/// programs the bare codes; in other fonts the code is the character.
QChar symbolOfCode(char16_t code, const QString &family)
{
    const bool isBareCode = code >= 0x20 && code <= 0xFF && isSymbolOrPictureFamily(family);
    return QChar(isBareCode ? static_cast<char16_t>(symbolGlyphBase + code) : code);
}

QByteArrayView trimmedXml(QByteArrayView text)
{
    while (!text.isEmpty() && isXmlSpace(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isXmlSpace(text.back()))
        text.chop(1);
    return text;
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
    if (m_leftOutDepth > 0)
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
    if (m_leftOutDepth > 0) {
        if (m_leftOutDepth == m_depth)
            m_leftOutDepth = 0;
        --m_depth;
        return;
    }
    if (!m_scopes.empty() && m_scopes.back().depth == m_depth) {
        if (mode() == Mode::Text)
            endText();
        m_scopes.pop_back();
    } else if (mode() == Mode::Content && name.space == XmlSpace::Word && m_assembler.isInStory()) {
        // What stands within a text or within properties has not begun as a block.
        endBlock(name.tag);
    } else if (mode() == Mode::Content && name.space == XmlSpace::Math && m_assembler.isInStory()) {
        if (m_formulaParts.endElement(name.tag, m_depth) && m_assembler.isInParagraph())
            m_assembler.separate();
    }
    if (!m_states.empty() && state().depth == m_depth)
        endStory();
    --m_depth;
}

void StoryReader::endBlock(XmlTag tag)
{
    if (m_assembler.isInParagraph()) { // where startInline() has seen nothing of tables
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
    if (mode() == Mode::Text && m_leftOutDepth == 0)
        m_text.append(text);
}

void StoryReader::startContent(const XmlElement &element)
{
    if (element.isWord()) {
        startWordContent(element);
        return;
    }
    if (element.name().space == XmlSpace::Math && m_assembler.isInStory())
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
        leaveOut();
        break;
    default:
        if (m_formulaParts.startElement(tag, m_depth) && m_assembler.isInParagraph())
            m_assembler.separate();
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
        leaveOut();
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
        leaveOut();
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
        leaveOut();
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
        takeField(element);
        break;
    case "footnoteReference"_tag:
        if (shows())
            m_notes.footnotes.add(element.attribute("id"_tag).value_or("").toByteArray());
        break;
    case "endnoteReference"_tag:
        if (shows())
            m_notes.endnotes.add(element.attribute("id"_tag).value_or("").toByteArray());
        break;
    case "txbxContent"_tag:
    case "p"_tag: // which belongs into no other one, but is read all the same
        if (!shows()) {
            leaveOut();
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
    if (!element.isWord())
        return;
    switch (element.tag()) {
    case "rPrChange"_tag:
    case "pPrChange"_tag:
    case "sectPr"_tag:
        leaveOut();
        return;
    default:
        break;
    }
    const Theme &theme = m_assembler.theme();
    if (mode() == Mode::RunProperties)
        state().run.direct.take(element, theme);
    else if (mode() == Mode::MarkProperties)
        m_assembler.markProperties().take(element, theme);
    else if (element.tag() == "rPr"_tag)
        enter(Mode::MarkProperties);
    else
        m_assembler.paragraphProperties().take(element);
}

void StoryReader::startInTableProperties(const XmlElement &element)
{
    StoryAssembler::Table *table = m_assembler.table();
    if (!element.isWord() || !table)
        return;
    switch (element.tag()) {
    case "tblPrChange"_tag:
    case "trPrChange"_tag:
    case "tcPrChange"_tag:
        leaveOut();
        break;
    case "tblStyle"_tag:
        table->style = element.value().value_or("").toByteArray();
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

void StoryReader::beginStory()
{
    m_assembler.beginStory();
    m_states.push_back({m_depth, {}, {}});
}

void StoryReader::beginNote(const XmlElement &element)
{
    m_note = element.attribute("id"_tag).value_or("").toByteArray();
    if (m_wantedNotes && m_wantedNotes->contains(m_note))
        beginStory();
    else
        leaveOut();
}

void StoryReader::endStory()
{
    m_assembler.endStory(state().fieldsWithoutResult > 0);
    m_states.pop_back();
    if (m_states.empty() && m_wantedNotes)
        m_noteTexts.insert(m_note, m_assembler.takeText());
}

const RunFormat &StoryReader::format()
{
    Run &run = state().run;
    if (!run.format)
        run.format = m_assembler.formatOf(run.direct);
    return *run.format;
}

bool StoryReader::shows()
{
    return state().fieldsWithoutResult == 0 && !format().isHidden();
}

void StoryReader::startText()
{
    if (!m_assembler.isInParagraph() || !shows()) {
        leaveOut();
        return;
    }
    m_text.clear();
    state().keepsSpace = !m_spaceScopes.empty() && m_spaceScopes.back().isKept;
    enter(Mode::Text);
}

void StoryReader::endText()
{
    QString text = QString::fromUtf8(state().keepsSpace ? QByteArrayView(m_text) : trimmedXml(m_text));
    // A line end of the file is none of the text.
    for (QChar &unit : text)
        if (unit == u'\n' || unit == u'\r')
            unit = u' ';
    append(replaceSymbolGlyphs(text, format().ascii().font.family));
}

void StoryReader::append(QStringView text)
{
    if (shows())
        m_assembler.append(text, format());
}

void StoryReader::appendBreak(const XmlElement &element)
{
    const QByteArrayView type = element.attribute("type"_tag).value_or("textWrapping");
    append(type == "page" || type == "column" ? pageBreak : lineBreak);
}

void StoryReader::appendSymbol(const XmlElement &element)
{
    const std::optional<int> code = hexadecimalOf(element.attribute("char"_tag));
    if (!code || *code <= 0 || *code > 0xFFFF || QChar::isSurrogate(static_cast<char32_t>(*code)))
        return;
    const QString font = fontNameOf(element.attribute("font"_tag).value_or(""));
    const QString symbol =
        replaceSymbolGlyphs(QString(symbolOfCode(static_cast<char16_t>(*code), font)), font);
    if (!shows())
        return;
    RunProperties direct = state().run.direct;
    if (!font.isEmpty())
        direct.fonts = {font, font, font, font};
    m_assembler.append(symbol, m_assembler.formatOf(direct));
}

void StoryReader::takeField(const XmlElement &element)
{
    StoryState &story = state();
    const QByteArrayView type = element.attribute("fldCharType"_tag).value_or("");
    if (type == "begin") {
        story.fields.push_back(false);
        ++story.fieldsWithoutResult;
        return;
    }
    if (story.fields.empty() || (type != "separate" && type != "end"))
        return;
    if (!story.fields.back())
        --story.fieldsWithoutResult;
    if (type == "separate")
        story.fields.back() = true;
    else
        story.fields.pop_back();
}

void StoryReader::insertChunk(const XmlElement &element)
{
    const auto identifier = element.attribute(XmlName{XmlSpace::Relationships, "id"_tag});
    if (!identifier || m_error || state().fieldsWithoutResult > 0)
        return;
    Result<AttributedString, DocumentError::Cause> chunk = m_readChunk(identifier->toByteArray());
    if (chunk)
        m_assembler.insert(chunk.value());
    else
        m_error = chunk.error();
}
