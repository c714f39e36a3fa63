// SPDX-License-Identifier: MIT
// Reads any bytes as a web page; reading must end with a sound text or an error. A first line that begins
// with "charset " is the charset that the transfer names.
#include "documents/html/HtmlReader.h"
#include "documents/html/HtmlStyleAttribute.h"
#include "fuzz/SoundText.h"

#include <cstdint>

namespace {

void requireSoundAttributes(const TextAttributes &attributes)
{
    require(attributes.font.has_value() && !attributes.attachment);
    require(attributes.font->pointSize >= 1 && attributes.font->pointSize <= 1000);
    require(attributes.font->weight >= 1 && attributes.font->weight <= 1000);
    const ParagraphStyle &style = attributes.paragraphStyle;
    for (const double indent : {style.headIndent, style.firstLineHeadIndent, style.tailIndent})
        require(indent >= 0 && indent <= 10'000);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QByteArrayView page(data, static_cast<qsizetype>(size));
    HtmlOptions options;
    options.charset = takeFirstLine(page, "charset ");
    static_cast<void>(looksLikeHtml(page));
    static_cast<void>(parseStyleAttribute(page));

    const Result<AttributedString, DocumentError> read = readHtml(page, options);
    if (!read) {
        require(read.error().cause == DocumentError::Cause::TooDeep
            || read.error().cause == DocumentError::Cause::TooComplex);
        return 0;
    }
    const AttributedString &text = read.value();
    require(text.string().isValidUtf16());
    require(text.length() <= page.size());
    requireSound(text);
    for (const TextAttributes &attributes : text.distinctAttributes())
        requireSoundAttributes(attributes);
    return 0;
}
