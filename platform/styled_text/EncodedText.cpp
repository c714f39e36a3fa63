// SPDX-License-Identifier: MIT
#include "platform/styled_text/EncodedText.h"

#include "platform/styled_text/EncodingConverter.h"

#include <cstring>
#include <optional>

namespace {

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
    // No encoding makes more code units than it has bytes; pages that are not needed are never touched.
    QString text(bytes.size(), Qt::Uninitialized);
    text.truncate(EncodingConverter(encoding).convert(bytes, reinterpret_cast<char16_t *>(text.data())));
    return text;
}
