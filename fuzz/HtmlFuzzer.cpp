// SPDX-License-Identifier: MIT
// Reads any bytes as a web page; reading must end with a sound text or an error. A first line that begins
// with "charset " is the charset that the transfer names.
#include "documents/html/HtmlReader.h"
#include "documents/html/HtmlStyleAttribute.h"
#include "fuzz/FuzzerInput.h"

#include <cstdint>

namespace {

void requireSound(const TextAttributes &attributes)
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
    constexpr QByteArrayView charset = "charset ";
    if (page.startsWith(charset)) {
        const qsizetype end = page.indexOf('\n');
        const QByteArrayView line = page.first(end < 0 ? page.size() : end);
        options.charset = line.sliced(charset.size()).toByteArray();
        page = page.sliced(line.size());
    }
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
    qsizetype end = 0;
    for (qsizetype i = 0; i < text.runCount(); ++i) {
        const AttributedString::Run run = text.run(i);
        require(run.start == end && run.length > 0);
        require(i == 0 || text.run(i - 1).attributesIndex != run.attributesIndex);
        end += run.length;
    }
    require(end == text.length());
    for (const TextAttributes &attributes : text.distinctAttributes())
        requireSound(attributes);
    return 0;
}
