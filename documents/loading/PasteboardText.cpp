// SPDX-License-Identifier: MIT
#include "documents/loading/PasteboardText.h"

#include "documents/loading/SandboxedReader.h"
#include "platform/pasteboard/MediaType.h"
#include "platform/text_encoding/EncodingLabels.h"

#include <array>
#include <utility>

namespace {

constexpr std::array richestFirst{
    DocumentKind::Rtfd, DocumentKind::Rtf, DocumentKind::Html, DocumentKind::PlainText};

/// A form that names its charset comes before one that does not, or that names an unknown one: what such a
/// form means depends on the program that made it.
std::optional<AttributedString> readFormOf(
    DocumentKind kind, const Pasteboard::Forms &forms, const std::stop_token &stop)
{
    for (const bool isCharsetKnown : {true, false}) {
        for (const auto &[name, bytes] : forms) {
            const MediaType type = MediaType::parse(name);
            if (kindOfMimeType(type.name) != kind
                || (encodingOfLabel(type.charset) != nullptr) != isCharsetKnown)
                continue;
            if (Result<AttributedString, DocumentError> text =
                    SandboxedReader::shared().read(kind, bytes, {.charset = type.charset, .stop = stop}))
                return std::move(text).value();
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<AttributedString> readAttributedString(
    const Pasteboard &pasteboard, const std::stop_token &stop)
{
    for (const DocumentKind kind : richestFirst) {
        if (std::optional<AttributedString> text = readFormOf(kind, pasteboard.forms(), stop))
            return text;
    }
    return std::nullopt;
}
