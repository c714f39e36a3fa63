// SPDX-License-Identifier: MIT
#include "platform/styled_text/rtf/RtfDecoder.h"

#include "platform/styled_text/rtf/RtfSymbolFont.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include <algorithm>
#include <new>

namespace {

void throwOnFailure(UErrorCode status, const char *encoding)
{
    if (status == U_MEMORY_ALLOCATION_ERROR)
        throw std::bad_alloc();
    if (U_FAILURE(status))
        qFatal("ICU cannot read %s: %s", encoding, u_errorName(status)); // a broken installation of ICU
}

/// ICU's own way writes U+001A for some bytes of some encodings.
void writeReplacement(const void *, UConverterToUnicodeArgs *arguments, const char *, int32_t,
    UConverterCallbackReason reason, UErrorCode *status)
{
    if (reason > UCNV_IRREGULAR) // not about any bytes
        return;
    *status = U_ZERO_ERROR;
    const UChar replacement = QChar::ReplacementCharacter;
    ucnv_cbToUWriteUChars(arguments, &replacement, 1, 0, status);
}

bool isAscii(QByteArrayView bytes)
{
    uchar all = 0;
    for (const char byte : bytes)
        all |= static_cast<uchar>(byte);
    return all < 0x80;
}

} // namespace

void RtfDecoder::CloseConverter::operator()(UConverter *converter) const
{
    ucnv_close(converter);
}

RtfDecoder::RtfDecoder()
    : m_pages(static_cast<size_t>(rtfCodePageCount()))
{
}

RtfDecoder::~RtfDecoder() = default;

qsizetype RtfDecoder::convert(UConverter *converter, QByteArrayView bytes, char16_t *target, qsizetype room)
{
    UErrorCode status = U_ZERO_ERROR;
    const char *source = bytes.data();
    UChar *end = target;
    ucnv_toUnicode(converter, &end, target + room, &source, source + bytes.size(), nullptr, true, &status);
    throwOnFailure(status, "text");
    return end - target;
}

void RtfDecoder::fill(Page &known, const RtfCodePage *page)
{
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<UConverter, CloseConverter> converter(ucnv_open(page->encoding, &status));
    throwOnFailure(status, page->encoding);
    ucnv_setToUCallBack(converter.get(), writeReplacement, nullptr, nullptr, nullptr, &status);
    throwOnFailure(status, page->encoding);
    if (ucnv_getMaxCharSize(converter.get()) > 1) {
        known.converter = std::move(converter);
        return;
    }
    known.singleBytes = std::make_unique<std::array<char16_t, 256>>();
    for (size_t value = 0; value < known.singleBytes->size(); ++value) {
        const auto byte = static_cast<char>(value);
        char16_t &unit = (*known.singleBytes).at(value);
        if (value < 0x80)
            unit = static_cast<char16_t>(value);
        else if (convert(converter.get(), {&byte, 1}, &unit, 1) != 1)
            unit = QChar::ReplacementCharacter;
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
    const qsizetype length = target.size();
    // No encoding makes more code units than it has bytes.
    target.resize(length + m_pending.size());
    auto *const from = reinterpret_cast<char16_t *>(target.data()) + length;
    target.truncate(length + convert(m_pendingConverter, m_pending, from, m_pending.size()));
    m_pending.clear();
}
