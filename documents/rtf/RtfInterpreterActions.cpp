// SPDX-License-Identifier: MIT
#include "documents/Lengths.h"
#include "documents/rtf/RtfInterpreter.h"
#include "documents/rtf/RtfLanguage.h"

#include <algorithm>

namespace {

/// The bits of an LCID that name the language; the bits above select a sort order.
constexpr qint32 languageBits = 0xFFFF;

} // namespace

void RtfInterpreter::performAction(const RtfWord &word, std::optional<qint32> parameter)
{
    switch (word.action) {
    case RtfAction::Nothing:
        break;
    case RtfAction::Character:
    case RtfAction::Break:
    case RtfAction::CellEnd:
    case RtfAction::RowEnd:
    case RtfAction::Unicode:
    case RtfAction::FallbackLength:
        performTextAction(word, parameter);
        break;
    case RtfAction::FormulaRow:
    case RtfAction::FormulaElement:
    case RtfAction::FormulaPart:
        performFormulaAction(word);
        break;
    case RtfAction::Destination:
        enterDestination(static_cast<RtfDestination>(word.argument));
        break;
    case RtfAction::UnicodeAlternative:
        if (m_state.destination == RtfDestination::Alternatives)
            m_state.destination = m_state.alternativeTo;
        break;
    case RtfAction::CodePage:
    case RtfAction::AnsiCodePage:
    case RtfAction::DefaultFont:
    case RtfAction::DefaultLanguage:
    case RtfAction::DefaultTabInterval:
        performDocumentAction(word, parameter);
        break;
    case RtfAction::FontCharset:
        m_fonts.setCharset(parameter.value_or(0));
        break;
    case RtfAction::FontCodePage:
        m_fonts.setCodePage(parameter.value_or(0));
        break;
    default:
        performFormatAction(word, parameter);
        break;
    }
}

void RtfInterpreter::performTextAction(const RtfWord &word, std::optional<qint32> parameter)
{
    switch (word.action) {
    case RtfAction::Character: {
        const QChar character(static_cast<char16_t>(word.argument));
        appendCharacters({&character, 1});
        break;
    }
    case RtfAction::Break:
        if (isText())
            flow().bufferFor(m_state.format).append(QChar(word.argument));
        break;
    case RtfAction::CellEnd:
        // The end of a cell counts even in hidden text.
        if (m_state.destination == RtfDestination::Text)
            flow().bufferFor(m_state.format).append(QChar(word.argument));
        break;
    case RtfAction::RowEnd:
        if (m_state.destination == RtfDestination::Text)
            flow().requireNewParagraph();
        break;
    case RtfAction::Unicode:
        if (parameter) {
            appendUnicode(*parameter);
            m_fallback = m_state.fallbackLength;
        }
        break;
    case RtfAction::FallbackLength:
        m_state.fallbackLength = std::max(parameter.value_or(1), 0);
        break;
    default:
        break;
    }
}

/// Separates parts of a formula that are set apart on the page.
void RtfInterpreter::performFormulaAction(const RtfWord &word)
{
    if (word.action == RtfAction::FormulaRow) {
        m_state.isFormulaRow = true;
        return;
    }
    const bool isPart = word.action == RtfAction::FormulaPart || m_state.isInFormulaRow;
    if (!isPart || !isText())
        return;
    m_state.isFormulaPart = true;
    flow().requireSpace();
}

/// These words stand at the start of the document and also apply to the current state.
void RtfInterpreter::performDocumentAction(const RtfWord &word, std::optional<qint32> parameter)
{
    RtfCharacterFormat &character = m_state.format.character;
    switch (word.action) {
    case RtfAction::CodePage:
        m_documentPage = rtfCodePage(word.argument);
        break;
    case RtfAction::AnsiCodePage: {
        const RtfCodePage *page = rtfCodePage(parameter.value_or(0));
        if (page && page->kind == RtfCodePage::Kind::Encoding)
            m_documentPage = page;
        break;
    }
    case RtfAction::DefaultFont:
        m_plain.fontNumber = character.fontNumber = parameter.value_or(0);
        m_plain.namesFont = character.namesFont = true;
        break;
    case RtfAction::DefaultLanguage:
        m_plain.language = character.language = languageOf(parameter.value_or(0));
        break;
    case RtfAction::DefaultTabInterval:
        m_plainParagraph->style.defaultTabInterval = parameter.value_or(0) / twipsPerPoint;
        m_state.format.paragraph->style.defaultTabInterval = m_plainParagraph->style.defaultTabInterval;
        break;
    default:
        break;
    }
}

void RtfInterpreter::performFormatAction(const RtfWord &word, std::optional<qint32> parameter)
{
    RtfFormat &format = m_state.format;
    switch (word.action) {
    case RtfAction::Plain:
        format.character = m_plain;
        break;
    case RtfAction::PlainParagraph:
        format.paragraph = m_plainParagraph;
        break;
    case RtfAction::Language: {
        const QString language = languageOf(parameter.value_or(0));
        if (word.argument == 0 || !language.isEmpty())
            format.character.language = language;
        break;
    }
    case RtfAction::ExactFont:
    case RtfAction::ExactParagraph:
    case RtfAction::ExactLanguage:
    case RtfAction::ExactFile:
        applyExactValue(word.action, parameter.value_or(0));
        break;
    case RtfAction::Font:
        if (m_state.destination == RtfDestination::FontTable)
            m_fonts.beginFont(parameter.value_or(0), depth());
        else
            applyCharacterWord(word, parameter, format.character);
        break;
    default:
        if (word.action < RtfAction::PlainParagraph)
            applyCharacterWord(word, parameter, format.character);
        else
            applyParagraphWord(word, parameter, *format.paragraph);
        break;
    }
}

void RtfInterpreter::applyExactValue(RtfAction kind, qint32 number)
{
    if (m_state.destination == RtfDestination::ExactValues) {
        m_state.destination = RtfDestination::ExactValue;
        m_state.exactKind = kind;
        m_state.exactNumber = number;
        m_name.clear();
        m_isNameComplete = false;
        return;
    }
    RtfFormat &format = m_state.format;
    if (kind == RtfAction::ExactFile) {
        m_state.fileNumber = number;
    } else if (kind == RtfAction::ExactFont) {
        if (const FontAttributes *font = m_exactValues.font(number))
            format.character.apply(*font);
    } else if (kind == RtfAction::ExactParagraph) {
        if (const QSharedDataPointer<RtfParagraphFormat> *paragraph = m_exactValues.paragraph(number))
            format.paragraph = *paragraph;
    } else if (const QString *language = m_exactValues.language(number)) {
        format.character.language = *language;
    }
}

QString RtfInterpreter::languageOf(qint32 lcid)
{
    const qint32 language = lcid & languageBits;
    const auto found = m_languages.constFind(language);
    if (found != m_languages.cend())
        return *found;
    return *m_languages.insert(language, languageOfLcid(language));
}
