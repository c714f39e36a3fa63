// SPDX-License-Identifier: MIT
#include "documents/rtf/RtfDecoder.h"

#include "documents/rtf/RtfSymbolFont.h"

#include <algorithm>

namespace {

bool isAscii(QByteArrayView bytes)
{
    uchar all = 0;
    for (const char byte : bytes)
        all |= static_cast<uchar>(byte);
    return all < 0x80;
}

} // namespace

RtfDecoder::RtfDecoder()
    : m_pages(static_cast<size_t>(rtfCodePageCount()))
{
}

void RtfDecoder::fill(Page &known, const RtfCodePage *page)
{
    auto converter = std::make_unique<const EncodingConverter>(page->encoding);
    if (!converter->isSingleByte()) {
        known.converter = std::move(converter);
        return;
    }
    known.singleBytes = std::make_unique<std::array<char16_t, 256>>();
    QString character;
    for (size_t value = 0; value < known.singleBytes->size(); ++value) {
        const auto byte = static_cast<char>(value);
        char16_t &unit = (*known.singleBytes).at(value);
        character.clear();
        if (value >= 0x80)
            converter->append({&byte, 1}, character);
        if (value < 0x80)
            unit = static_cast<char16_t>(value);
        else
            unit =
                character.size() == 1 ? character.front().unicode() : char16_t{QChar::ReplacementCharacter};
    }
}

const RtfDecoder::Page &RtfDecoder::known(const RtfCodePage *page)
{
    Page &known = m_pages[static_cast<size_t>(rtfCodePageIndex(page))];
    if (known.isKnown)
        return known;
    if (page->kind == RtfCodePage::Kind::Encoding)
        fill(known, page);
    else
        known.singleBytes = std::make_unique<std::array<char16_t, 256>>(
            page->kind == RtfCodePage::Kind::SymbolFont ? symbolFontCharacters() : pictureFontCharacters());
    known.isKnown = true;
    return known;
}

void RtfDecoder::append(QByteArrayView bytes, const RtfCodePage *page, QString &target)
{
    if (m_pending.isEmpty() && page->kind == RtfCodePage::Kind::Encoding && isAscii(bytes)) {
        target.append(QLatin1StringView(bytes));
        return;
    }
    const Page &converted = known(page);
    if (!converted.singleBytes) {
        m_pending.append(bytes);
        m_pendingConverter = converted.converter.get();
        return;
    }
    const qsizetype length = target.size();
    target.resize(length + bytes.size());
    std::ranges::transform(bytes, target.data() + length,
        [&units = *converted.singleBytes](char byte) { return QChar(units[static_cast<uchar>(byte)]); });
}

void RtfDecoder::finish(QString &target)
{
    if (m_pending.isEmpty())
        return;
    m_pendingConverter->append(m_pending, target);
    m_pending.clear();
}
