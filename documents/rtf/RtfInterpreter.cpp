// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfInterpreter.h"

#include "documents/SymbolFont.h"

#include <algorithm>
#include <utility>

namespace {

/// Deeper groups share the state of the group around them.
constexpr size_t maxGroupDepth = 10'000;

/// Code units of the name of an attachment or of an exact value; longer ones are truncated.
constexpr qsizetype maxNameLength = 16'384;

/// Represents the attachment in its group: the character "not sign" in Windows-1252.
constexpr uchar attachmentMarker = 0xAC;

// The range of a symbol font in \u.
constexpr char16_t firstSymbolGlyph = symbolGlyphBase + 0x20;
constexpr char16_t lastSymbolGlyph = symbolGlyphBase + 0xFF;

constexpr qint32 lastCodeUnit = 0xFFFF;
constexpr qint32 codeUnitCount = 0x10000;
constexpr qint32 lastCodePoint = 0x10FFFF;

} // namespace

AttributedString RtfInterpreter::readText(RtfTokenizer tokens)
{
    m_body.reserve(tokens.remaining());
    do {
        const RtfToken token = tokens.next();
        if (token.kind == RtfToken::Kind::End)
            break;
        handle(token);
        if (token.kind == RtfToken::Kind::Text)
            readPlainRun(tokens);
    } while (depth() > 0);
    finishBytes();
    m_body.append(m_asides);
    return m_body.takeText();
}

void RtfInterpreter::readPlainRun(RtfTokenizer &tokens)
{
    constexpr qsizetype maxLength = 65'536; // the flow passes pieces of this length on
    if (isText() && m_fallback == 0 && !m_decoder.hasPendingBytes()
        && page()->kind == RtfCodePage::Kind::Encoding)
        tokens.appendPlainRun(flow().bufferFor(m_state.format), maxLength);
}

void RtfInterpreter::handle(const RtfToken &token)
{
    const bool isAtGroupStart = std::exchange(m_isAtGroupStart, token.kind == RtfToken::Kind::GroupBegin);
    const bool isStar = token.kind == RtfToken::Kind::Symbol && token.byte == '*';
    const bool isStarred = std::exchange(m_isStarred, isAtGroupStart && isStar);
    switch (token.kind) {
    case RtfToken::Kind::GroupBegin:
        beginGroup();
        break;
    case RtfToken::Kind::GroupEnd:
        endGroup();
        break;
    case RtfToken::Kind::Word:
        handleWord(token, isStarred);
        break;
    case RtfToken::Kind::Symbol:
        handleSymbol(token.byte);
        break;
    case RtfToken::Kind::Byte:
        handleByte(token.byte);
        break;
    case RtfToken::Kind::Text:
        handleText(token.bytes);
        break;
    case RtfToken::Kind::Binary:
        finishBytes();
        m_fallback = std::max<qsizetype>(m_fallback - 1, 0);
        break;
    case RtfToken::Kind::End:
        break;
    }
}

void RtfInterpreter::beginGroup()
{
    finishBytes();
    m_fallback = 0;
    if (depth() >= maxGroupDepth) {
        ++m_deeperGroups;
        return;
    }
    m_outer.push_back(m_state);
    m_state.beginsAside = false;
    m_state.isInFormulaRow = std::exchange(m_state.isFormulaRow, false);
    m_state.isFormulaPart = false;
    m_state.graphic = RtfGraphics::none;
}

void RtfInterpreter::endGroup()
{
    finishBytes();
    m_fallback = 0;
    if (m_deeperGroups > 0) {
        --m_deeperGroups;
        return;
    }
    const State left = std::exchange(m_state, std::move(m_outer.back()));
    m_outer.pop_back();
    leaveDestination(left);
    if (left.isFormulaPart && isText())
        flow().requireSpace();
}

void RtfInterpreter::leaveDestination(const State &left)
{
    if (left.destination == RtfDestination::FontTable)
        m_fonts.endGroup(depth() + 1, m_decoder);
    else if (left.destination == RtfDestination::GraphicName && m_state.destination != left.destination)
        m_state.graphic = m_graphics.add(m_name, left.fileNumber);
    else if (left.destination == RtfDestination::ExactValue && m_state.destination != left.destination)
        m_exactValues.add(left.exactKind, left.exactNumber, m_name);
    if (left.beginsAside)
        m_asides.requireNewParagraph();
}

void RtfInterpreter::enterDestination(RtfDestination destination)
{
    if (depth() <= 1)
        return; // the group of the document itself has no destination
    const RtfDestination current = m_state.destination;
    const bool mayHoldText = current == RtfDestination::Text || current == RtfDestination::Container;
    if (destination == RtfDestination::Skipped) {
        m_state.destination = destination;
    } else if (destination == RtfDestination::Alternatives) {
        m_state.alternativeTo = current;
        m_state.destination = destination;
    } else if (!mayHoldText) {
        return;
    } else if (destination != RtfDestination::Aside) {
        m_state.destination = destination;
        m_name.clear();
        m_isNameComplete = false;
    } else if (m_state.format.character.isText()) {
        m_state.destination = RtfDestination::Text;
        m_state.isAside = true;
        m_state.beginsAside = true;
        m_asides.requireNewParagraph();
    } else {
        m_state.destination = RtfDestination::Skipped;
    }
}

void RtfInterpreter::handleText(QByteArrayView bytes)
{
    const qsizetype skipped = std::min(m_fallback, bytes.size());
    m_fallback -= skipped;
    bytes = bytes.sliced(skipped);
    if (m_state.graphic != RtfGraphics::none) {
        const qsizetype marker = bytes.indexOf(static_cast<char>(attachmentMarker));
        if (marker >= 0) {
            appendBytes(bytes.first(marker));
            appendMarker();
            bytes = bytes.sliced(marker + 1);
        }
    }
    appendBytes(bytes);
}

void RtfInterpreter::handleByte(uchar byte)
{
    if (m_fallback > 0) {
        --m_fallback;
        return;
    }
    const auto character = static_cast<char>(byte);
    if (byte == attachmentMarker && m_state.graphic != RtfGraphics::none)
        appendMarker();
    else if (m_state.destination == RtfDestination::FontTable)
        m_fonts.appendNameByte(character, m_documentPage, m_decoder);
    else
        appendBytes({&character, 1});
}

void RtfInterpreter::handleSymbol(uchar symbol)
{
    const bool isLineEnd = symbol == '\r' || symbol == '\n';
    const bool isFallback = m_fallback > 0 && !isLineEnd && symbol != '*';
    m_fallback = isFallback ? m_fallback - 1 : 0;
    if (isFallback)
        return;
    finishBytes();
    switch (symbol) {
    case '\\':
    case '{':
    case '}': {
        const auto character = static_cast<char>(symbol);
        appendBytes({&character, 1});
        break;
    }
    case '~':
        appendCharacters(u"\u00A0");
        break;
    case '_':
        appendCharacters(u"\u2011");
        break;
    case '-':
        appendCharacters(u"\u00AD");
        break;
    case '\t':
        appendCharacters(u"\t");
        break;
    case '\r':
    case '\n':
        if (isText())
            flow().bufferFor(m_state.format).append(u'\n');
        break;
    default:
        break;
    }
}

void RtfInterpreter::handleWord(const RtfToken &token, bool isStarred)
{
    finishBytes();
    if (m_state.destination == RtfDestination::Skipped)
        return;
    const RtfWord *word = rtfWord(token.bytes);
    const RtfAction action = word ? word->action : RtfAction::Nothing;
    // A word for a character may be a fallback. Any other word ends the fallback.
    if (m_fallback > 0 && action == RtfAction::Character) {
        --m_fallback;
        return;
    }
    m_fallback = 0;
    if (m_state.destination == RtfDestination::GraphicName && !m_isNameComplete
        && action != RtfAction::Unicode && action != RtfAction::FallbackLength
        && action != RtfAction::Character) {
        m_isNameComplete = true;
        if (m_name.endsWith(u' ')) // the separator between name and word
            m_name.chop(1);
    }
    if (isStarred && action != RtfAction::Destination && action != RtfAction::UnicodeAlternative)
        enterDestination(RtfDestination::Skipped);
    else if (word)
        performAction(*word, token.parameter);
}

const RtfCodePage *RtfInterpreter::page()
{
    if (m_state.destination != RtfDestination::Text)
        return m_documentPage;
    const qint32 font = m_state.format.character.fontNumber;
    if (m_fontOfPage != font || m_versionOfPage != m_fonts.version()) {
        m_fontOfPage = font;
        m_versionOfPage = m_fonts.version();
        m_fontPage = m_fonts.page(font);
    }
    return m_fontPage ? m_fontPage : m_documentPage;
}

bool RtfInterpreter::isText() const
{
    return m_state.destination == RtfDestination::Text && m_state.format.character.isText();
}

QString *RtfInterpreter::target()
{
    if (isText())
        return &flow().bufferFor(m_state.format);
    const bool isName = m_state.destination == RtfDestination::GraphicName
        || m_state.destination == RtfDestination::ExactValue;
    return isName && !m_isNameComplete && m_name.size() <= maxNameLength ? &m_name : nullptr;
}

void RtfInterpreter::appendBytes(QByteArrayView bytes)
{
    if (bytes.isEmpty())
        return;
    if (m_state.destination == RtfDestination::FontTable)
        m_fonts.appendName(bytes, m_documentPage, m_decoder);
    else if (QString *text = target())
        m_decoder.append(bytes, page(), *text);
}

void RtfInterpreter::appendCharacters(QStringView characters)
{
    if (m_state.destination == RtfDestination::FontTable)
        m_fonts.appendName(characters, m_decoder);
    else if (QString *text = target())
        text->append(characters);
}

void RtfInterpreter::appendUnicode(qint32 number)
{
    if (number >= INT16_MIN && number < 0)
        number += codeUnitCount;
    else if (number < 0 || number > lastCodePoint)
        number = QChar::ReplacementCharacter;
    const bool isSymbol = number >= firstSymbolGlyph && number <= lastSymbolGlyph
        && page()->kind == RtfCodePage::Kind::SymbolFont;
    if (isSymbol) {
        const auto byte = static_cast<char>(number - symbolGlyphBase);
        appendBytes({&byte, 1});
    } else if (number <= lastCodeUnit) {
        const QChar unit(static_cast<char16_t>(number));
        appendCharacters({&unit, 1});
    } else {
        appendCharacters(QChar::fromUcs4(static_cast<char32_t>(number)));
    }
}

void RtfInterpreter::appendMarker()
{
    finishBytes();
    const qint32 graphic = std::exchange(m_state.graphic, RtfGraphics::none);
    if (isText())
        flow().appendAttachment(m_state.format, m_graphics.attachment(graphic, m_state.fileNumber));
}

void RtfInterpreter::finishBytes()
{
    if (!m_decoder.hasPendingBytes())
        return;
    if (m_state.destination == RtfDestination::FontTable)
        m_fonts.finishName(m_decoder);
    else
        m_decoder.finish(isText() ? flow().bufferFor(m_state.format) : m_name);
}
