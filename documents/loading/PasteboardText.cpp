// SPDX-License-Identifier: MIT
#include "documents/loading/PasteboardText.h"

#include "documents/PlainTextReader.h"
#include "documents/html/HtmlReader.h"
#include "documents/rtf/RtfReader.h"
#include "documents/rtfd/RtfdReader.h"
#include "platform/pasteboard/MediaType.h"
#include "platform/text_encoding/EncodingLabels.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Read = std::optional<AttributedString> (*)(const QByteArray &bytes, const QByteArray &charset);

template <typename Error>
std::optional<AttributedString> textOf(Result<AttributedString, Error> result)
{
    return result ? std::optional(std::move(result).value()) : std::nullopt;
}

std::optional<AttributedString> readPlain(const QByteArray &bytes, const QByteArray &charset)
{
    const Result<PlainText, DocumentError> text = readPlainText(bytes, charset);
    return text ? std::optional(AttributedString(text.value().text)) : std::nullopt;
}

/// A kind of form, by its names.
struct Kind {
    std::array<QStringView, 3> types;
    Read read;
};

// The richest first.
const std::array kinds{
    Kind{{Pasteboard::flatRtfdType},
        [](const QByteArray &bytes, const QByteArray &) { return textOf(readFlatRtfd(bytes)); }},
    Kind{{Pasteboard::rtfType, u"application/rtf", u"text/richtext"},
        [](const QByteArray &bytes, const QByteArray &) { return textOf(readRtf(bytes)); }},
    Kind{{Pasteboard::htmlType},
        [](const QByteArray &bytes, const QByteArray &charset) {
            return textOf(readHtml(bytes, {.charset = charset}));
        }},
    Kind{{Pasteboard::plainTextType}, readPlain},
};

bool isOf(const Kind &kind, const MediaType &type)
{
    return std::any_of(kind.types.begin(), kind.types.end(),
        [&](QStringView name) { return !name.isEmpty() && type.name == name; });
}

/// Of the forms that are of the kind, one that says its charset comes first: what a form means that says
/// none, or one that nobody knows, depends on who made it.
std::optional<AttributedString> read(const Kind &kind, const Pasteboard::Forms &forms)
{
    std::optional<AttributedString> text;
    for (const bool isCharsetKnown : {true, false}) {
        for (const auto &[name, bytes] : forms) {
            const MediaType type = MediaType::parse(name);
            if (!isOf(kind, type) || (encodingOfLabel(type.charset) != nullptr) != isCharsetKnown)
                continue;
            if (text = kind.read(bytes, type.charset); text)
                return text;
        }
    }
    return text;
}

} // namespace

std::optional<AttributedString> readAttributedString(const Pasteboard &pasteboard)
{
    for (const Kind &kind : kinds) {
        if (std::optional<AttributedString> text = read(kind, pasteboard.forms()))
            return text;
    }
    return std::nullopt;
}
