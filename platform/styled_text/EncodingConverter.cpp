// SPDX-License-Identifier: MIT
#include "platform/styled_text/EncodingConverter.h"

#include <QChar>

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

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

} // namespace

void EncodingConverter::Close::operator()(UConverter *converter) const
{
    ucnv_close(converter);
}

EncodingConverter::EncodingConverter(const char *encoding)
    : m_encoding(encoding)
{
    UErrorCode status = U_ZERO_ERROR;
    m_converter.reset(ucnv_open(encoding, &status));
    throwOnFailure(status, encoding);
    ucnv_setToUCallBack(m_converter.get(), writeReplacement, nullptr, nullptr, nullptr, &status);
    throwOnFailure(status, encoding);
}

bool EncodingConverter::isSingleByte() const
{
    return ucnv_getMaxCharSize(m_converter.get()) == 1;
}

qsizetype EncodingConverter::convert(QByteArrayView bytes, char16_t *target) const
{
    const char *source = bytes.data();
    UChar *end = target;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(m_converter.get(), &end, target + bytes.size(), &source, source + bytes.size(), nullptr,
        true, &status);
    throwOnFailure(status, m_encoding);
    return end - target;
}
