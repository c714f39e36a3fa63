// SPDX-License-Identifier: MIT
#include "platform/text_encoding/EncodingConverter.h"

#include "platform/text_encoding/JohabText.h"
#include "platform/text_encoding/Utf8Decoding.h"

#include <QChar>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include <new>
#include <optional>
#include <string_view>

namespace {

/// Replaces ICU's default callback, which writes U+001A for some bytes.
void writeReplacement(const void *, UConverterToUnicodeArgs *arguments, const char *, int32_t,
    UConverterCallbackReason reason, UErrorCode *status)
{
    if (reason > UCNV_IRREGULAR) // the converter is being reset or closed
        return;
    *status = U_ZERO_ERROR;
    const UChar replacement = QChar::ReplacementCharacter;
    ucnv_cbToUWriteUChars(arguments, &replacement, 1, 0, status);
}

} // namespace

void EncodingConverter::Close::operator()(UConverter *converter) const
{
    ucnv_close(converter);
}

EncodingConverter::EncodingConverter(const char *encoding)
{
    for (const char *name : {encoding, "ISO-8859-1"}) {
        UErrorCode status = U_ZERO_ERROR;
        m_converter.reset(ucnv_open(name, &status));
        if (m_converter)
            ucnv_setToUCallBack(m_converter.get(), writeReplacement, nullptr, nullptr, nullptr, &status);
        if (U_SUCCESS(status))
            return;
    }
    throw std::bad_alloc();
}

bool EncodingConverter::isSingleByte() const
{
    return ucnv_getMaxCharSize(m_converter.get()) == 1;
}

void EncodingConverter::append(QByteArrayView bytes, QString &target) const
{
    ucnv_resetToUnicode(m_converter.get());
    const char *source = bytes.data();
    const char *const sourceEnd = source + bytes.size();
    qsizetype length = target.size();
    // Hardly any encoding yields more code units than bytes. Memory pages that are not written cost nothing.
    target.resize(length + bytes.size());
    for (;;) {
        auto *const start = reinterpret_cast<char16_t *>(target.data());
        UChar *end = start + length;
        UErrorCode status = U_ZERO_ERROR;
        ucnv_toUnicode(
            m_converter.get(), &end, start + target.size(), &source, sourceEnd, nullptr, true, &status);
        length = end - start;
        if (status != U_BUFFER_OVERFLOW_ERROR) {
            if (status == U_MEMORY_ALLOCATION_ERROR)
                throw std::bad_alloc();
            break;
        }
        target.resize(target.size() + target.size() / 2 + 16);
    }
    target.truncate(length);
}

QString decodeText(QByteArrayView bytes, const char *encoding)
{
    const std::string_view name = encoding;
    if (name == johabEncoding)
        return textOfJohab(bytes);
    if (name == "UTF-8") {
        // ICU writes one U+FFFD for each broken sequence, as the Unicode Standard recommends.
        if (std::optional<QString> text = decodeUtf8(bytes))
            return *std::move(text);
    }
    QString text;
    EncodingConverter(encoding).append(bytes, text);
    return text;
}
