// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfFontTable.h"

#include "documents/SymbolFont.h"
#include "documents/rtf/RtfDecoder.h"

#include <algorithm>

namespace {

/// Further fonts are ignored. Font numbers have 16 bits.
constexpr qsizetype maxFonts = 65'536;

/// Code units; longer names are truncated.
constexpr qsizetype maxFamilyLength = 1024;

qsizetype trailingBlanks(QByteArrayView bytes)
{
    const auto last = std::find_if_not(bytes.rbegin(), bytes.rend(), [](char byte) { return byte == ' '; });
    return last - bytes.rbegin();
}

} // namespace

void RtfFontTable::beginFont(qint32 number, size_t depth)
{
    m_isOpen = true;
    m_number = number;
    m_depth = depth;
    m_font = {};
    m_trailingBlanks = 0;
}

void RtfFontTable::setCharset(qint32 charset)
{
    m_font.page = rtfCodePageOfCharset(charset);
}

void RtfFontTable::setCodePage(qint32 number)
{
    if (const RtfCodePage *page = rtfCodePage(number))
        m_font.page = page;
}

/// The name of a symbol font is not encoded in the symbols of that font.
const RtfCodePage *RtfFontTable::namePage(const RtfCodePage *documentPage) const
{
    return m_font.page && m_font.page->kind == RtfCodePage::Kind::Encoding ? m_font.page : documentPage;
}

void RtfFontTable::appendPiece(QByteArrayView bytes, const RtfCodePage *documentPage, RtfDecoder &decoder)
{
    if (m_font.family.isEmpty() && !decoder.hasPendingBytes()) {
        const auto *const first = std::ranges::find_if(bytes, [](char byte) { return byte != ' '; });
        bytes = bytes.sliced(first - bytes.begin());
    }
    if (bytes.isEmpty() || m_font.family.size() > maxFamilyLength)
        return;
    decoder.append(bytes, namePage(documentPage), m_font.family);
    const qsizetype blanks = trailingBlanks(bytes);
    m_trailingBlanks = blanks == bytes.size() ? m_trailingBlanks + blanks : blanks;
}

void RtfFontTable::appendName(QByteArrayView bytes, const RtfCodePage *documentPage, RtfDecoder &decoder)
{
    while (m_isOpen) {
        const qsizetype semicolon = bytes.indexOf(';');
        if (semicolon < 0) {
            appendPiece(bytes, documentPage, decoder);
            return;
        }
        appendPiece(bytes.first(semicolon), documentPage, decoder);
        endFont(decoder);
        bytes = bytes.sliced(semicolon + 1);
    }
}

void RtfFontTable::appendNameByte(char byte, const RtfCodePage *documentPage, RtfDecoder &decoder)
{
    if (!m_isOpen || m_font.family.size() > maxFamilyLength)
        return;
    decoder.append({&byte, 1}, namePage(documentPage), m_font.family);
    m_trailingBlanks = 0;
}

void RtfFontTable::appendName(QStringView characters, RtfDecoder &decoder)
{
    if (!m_isOpen || m_font.family.size() > maxFamilyLength)
        return;
    decoder.finish(m_font.family);
    m_font.family.append(characters);
    m_trailingBlanks = 0;
}

void RtfFontTable::finishName(RtfDecoder &decoder)
{
    decoder.finish(m_font.family);
}

void RtfFontTable::endGroup(size_t depth, RtfDecoder &decoder)
{
    if (m_isOpen && depth <= m_depth)
        endFont(decoder);
}

void RtfFontTable::endFont(RtfDecoder &decoder)
{
    decoder.finish(m_font.family);
    m_font.family.chop(m_trailingBlanks);
    m_font.family.truncate(maxFamilyLength);
    const bool isSymbolFont = m_font.page && m_font.page->kind == RtfCodePage::Kind::PictureFont;
    if (isSymbolFont && isSymbolFamily(m_font.family))
        m_font.page = rtfCodePageOfSymbolFont();
    if (m_fonts.size() < maxFonts || m_fonts.contains(m_number))
        m_fonts.insert(m_number, m_font);
    m_isOpen = false;
    ++m_version;
}
