// SPDX-License-Identifier: MIT
#include "platform/styled_text/EncodedText.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/ucnv_err.h>

#include <cstring>
#include <memory>
#include <new>
#include <optional>

namespace {

struct CloseConverter {
    void operator()(UConverter *converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, CloseConverter>;

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

Converter makeConverter(const char *encoding)
{
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(encoding, &status));
    throwOnFailure(status, encoding);
    ucnv_setToUCallBack(converter.get(), writeReplacement, nullptr, nullptr, nullptr, &status);
    throwOnFailure(status, encoding);
    return converter;
}

/// Qt reads UTF-8 several times as fast as ICU, but writes more than one U+FFFD for some broken sequences,
/// and leaves out a byte order mark at the start.
std::optional<QString> wellFormedUtf8(QByteArrayView bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF"))
        return std::nullopt;
    QString text = QString::fromUtf8(bytes);
    // To look for the trace of a fault takes a tenth of the time of looking for the fault.
    if (text.contains(QChar::ReplacementCharacter))
        return std::nullopt;
    return text;
}

} // namespace

QString decodedText(QByteArrayView bytes, const char *encoding)
{
    if (std::strcmp(encoding, "UTF-8") == 0) {
        if (const std::optional<QString> text = wellFormedUtf8(bytes))
            return *text;
    }
    const Converter converter = makeConverter(encoding);
    // No encoding makes more code units than it has bytes; pages that are not needed are never touched.
    QString text(bytes.size(), Qt::Uninitialized);
    auto *target = reinterpret_cast<UChar *>(text.data());
    const UChar *targetEnd = target + text.size();
    const char *source = bytes.data();
    UErrorCode status = U_ZERO_ERROR;
    ucnv_toUnicode(
        converter.get(), &target, targetEnd, &source, source + bytes.size(), nullptr, true, &status);
    throwOnFailure(status, encoding);
    text.truncate(reinterpret_cast<QChar *>(target) - text.constData());
    return text;
}
