// SPDX-License-Identifier: MIT
#include "platform/styled_text/MimeCharset.h"

#include <unicode/ucnv.h>

namespace {

bool canBeRead(const char *encoding)
{
    UErrorCode status = U_ZERO_ERROR;
    UConverter *const converter = ucnv_open(encoding, &status);
    ucnv_close(converter);
    return U_SUCCESS(status);
}

} // namespace

const char *encodingOfMimeCharset(const QByteArray &charset)
{
    for (const char *const standard : {"MIME", "IANA"}) {
        UErrorCode status = U_ZERO_ERROR;
        const char *const encoding = ucnv_getCanonicalName(charset.constData(), standard, &status);
        if (U_SUCCESS(status) && encoding && canBeRead(encoding))
            return encoding;
    }
    return nullptr;
}
