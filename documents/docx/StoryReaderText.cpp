// SPDX-License-Identifier: MIT
#include "documents/SymbolFont.h"
#include "documents/docx/StoryReader.h"

namespace {

bool isXmlSpace(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/// The character for a code of w:sym. For a symbol font, Word stores private characters and some other
/// programs the bare codes; in other fonts the code is the character.
QChar symbolOfCode(char16_t code, const QString &family)
{
    const bool isBareCode = code >= 0x20 && code <= 0xFF && isSymbolOrPictureFamily(family);
    return isBareCode ? static_cast<char16_t>(symbolGlyphBase + code) : code;
}

QByteArrayView trimXmlSpace(QByteArrayView text)
{
    while (!text.isEmpty() && isXmlSpace(text.front()))
        text = text.sliced(1);
    while (!text.isEmpty() && isXmlSpace(text.back()))
        text.chop(1);
    return text;
}

} // namespace

bool FormulaParts::startElement(XmlTag tag, int depth)
{
    if (tag == "mr"_tag || tag == "eqArr"_tag) {
        m_rows.push_back(depth);
        return false;
    }
    return isSetApart(tag, depth);
}

bool FormulaParts::endElement(XmlTag tag, int depth)
{
    if (!m_rows.empty() && m_rows.back() == depth) {
        m_rows.pop_back();
        return false;
    }
    return isSetApart(tag, depth);
}

bool FormulaParts::isSetApart(XmlTag tag, int depth) const
{
    const bool isCell = tag == "e"_tag && !m_rows.empty() && m_rows.back() == depth - 1;
    return isCell || tag == "num"_tag || tag == "den"_tag;
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
        skipElement();
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

bool StoryReader::isShown()
{
    return state().fieldsWithoutResult == 0 && !format().isHidden();
}

void StoryReader::startText()
{
    if (!m_assembler.isInParagraph() || !isShown()) {
        skipElement();
        return;
    }
    m_text.clear();
    state().keepsSpace = !m_spaceScopes.empty() && m_spaceScopes.back().isKept;
    enter(Mode::Text);
}

void StoryReader::endText()
{
    QString text = QString::fromUtf8(state().keepsSpace ? QByteArrayView(m_text) : trimXmlSpace(m_text));
    // Line ends in XML are white space.
    for (QChar &unit : text)
        if (unit == u'\n' || unit == u'\r')
            unit = u' ';
    append(replaceSymbolGlyphs(text, format().ascii().font.family));
}

void StoryReader::append(QStringView text)
{
    if (isShown())
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
    if (!isShown())
        return;
    RunProperties direct = state().run.direct;
    if (!font.isEmpty())
        direct.fonts = {font, font, font, font};
    m_assembler.append(symbol, m_assembler.formatOf(direct));
}

void StoryReader::handleFieldCharacter(const XmlElement &element)
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
    const auto identifier = element.attribute(XmlName{OfficeSpace::Relationships, "id"_tag});
    if (!identifier || m_error || state().fieldsWithoutResult > 0)
        return;
    const Result<AttributedString, DocumentError::Cause> chunk = m_readChunk(identifier->toByteArray());
    if (chunk)
        m_assembler.insert(chunk.value());
    else
        m_error = chunk.error();
}
