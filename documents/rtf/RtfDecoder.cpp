// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfDecoder.h"

#include "documents/SymbolFont.h"

#include <algorithm>

namespace {

bool isAscii(QByteArrayView bytes)
{
    uchar all = 0;
    for (const char byte : bytes)
        all |= static_cast<uchar>(byte);
    return all < 0x80;
}

/// The characters of a symbol font. In fonts of pictures, letters and signs are private characters.
std::array<char16_t, 256> symbolCharacters(RtfCodePage::Kind kind)
{
    constexpr size_t firstGlyph = 0x21;
    std::array<char16_t, 256> table{};
    for (size_t code = 0; code < table.size(); ++code) {
        if (kind == RtfCodePage::Kind::SymbolFont)
            table.at(code) = symbolFontCharacter(static_cast<uchar>(code));
        else
            table.at(code) = static_cast<char16_t>(code < firstGlyph ? code : symbolGlyphBase + code);
    }
    return table;
}

} // namespace

RtfDecoder::RtfDecoder()
    : m_pages(static_cast<size_t>(rtfCodePageCount()))
{
}

void RtfDecoder::loadEncoding(const char *encoding, Page &target)
{
    auto converter = std::make_unique<const EncodingConverter>(encoding);
    if (!converter->isSingleByte()) {
        target.converter = std::move(converter);
        return;
    }
    target.singleBytes = std::make_unique<std::array<char16_t, 256>>();
    QString character;
    for (size_t value = 0; value < target.singleBytes->size(); ++value) {
        char16_t &unit = (*target.singleBytes).at(value);
        if (value < 0x80) {
            unit = static_cast<char16_t>(value);
            continue;
        }
        const auto byte = static_cast<char>(value);
        character.clear();
        converter->append({&byte, 1}, character);
        unit = character.size() == 1 ? character.front().unicode() : char16_t{QChar::ReplacementCharacter};
    }
}

const RtfDecoder::Page &RtfDecoder::loadPage(const RtfCodePage *page)
{
    Page &loaded = m_pages[static_cast<size_t>(rtfCodePageIndex(page))];
    if (loaded.isLoaded)
        return loaded;
    if (page->kind == RtfCodePage::Kind::Encoding)
        loadEncoding(page->encoding, loaded);
    else
        loaded.singleBytes = std::make_unique<std::array<char16_t, 256>>(symbolCharacters(page->kind));
    loaded.isLoaded = true;
    return loaded;
}

void RtfDecoder::append(QByteArrayView bytes, const RtfCodePage *page, QString &target)
{
    if (m_pending.isEmpty() && page->kind == RtfCodePage::Kind::Encoding && isAscii(bytes)) {
        target.append(QLatin1StringView(bytes));
        return;
    }
    const Page &loaded = loadPage(page);
    if (!loaded.singleBytes) {
        m_pending.append(bytes);
        m_pendingConverter = loaded.converter.get();
        return;
    }
    const qsizetype length = target.size();
    target.resize(length + bytes.size());
    std::ranges::transform(bytes, target.data() + length,
        [&units = *loaded.singleBytes](char byte) { return QChar(units[static_cast<uchar>(byte)]); });
}

void RtfDecoder::finish(QString &target)
{
    if (m_pending.isEmpty())
        return;
    m_pendingConverter->append(m_pending, target);
    m_pending.clear();
}
