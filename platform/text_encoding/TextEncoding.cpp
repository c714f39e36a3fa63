// SPDX-License-Identifier: MIT
#include "platform/text_encoding/TextEncoding.h"

#include "platform/text_encoding/LegacyEncoding.h"
#include "platform/text_encoding/UnmarkedUnicode.h"
#include "platform/text_encoding/Utf8Decoding.h"

#include <unicode/utf8.h>

#include <algorithm>
#include <optional>
#include <string_view>

namespace {

/// Bytes, from the first one above 127 on.
constexpr qsizetype utf8SampleSize = 65'536;

constexpr char escape = '\x1B';

/// The ISO-2022 encoding that an escape sequence belongs to; null unless it switches to a two-byte character
/// set. The other sequences prove nothing: terminals use some of them too.
/// sequence: the bytes after the escape character.
const char *iso2022EncodingOf(QByteArrayView sequence)
{
    struct Designation {
        std::string_view sequence;
        const char *name;
    };
    static constexpr Designation designations[] = {
        {"$@", "ISO-2022-JP-2"},
        {"$B", "ISO-2022-JP-2"},
        {"$(D", "ISO-2022-JP-2"},
        {"$)C", "ISO-2022-KR"},
        {"$)A", "ISO-2022-CN-EXT"},
        {"$)E", "ISO-2022-CN-EXT"},
        {"$)G", "ISO-2022-CN-EXT"},
    };
    for (const Designation &designation : designations) {
        if (sequence.startsWith(designation.sequence))
            return designation.name;
    }
    return nullptr;
}

std::optional<TextEncoding> iso2022Encoding(QByteArrayView sevenBitText)
{
    for (qsizetype at = sevenBitText.indexOf(escape); at >= 0; at = sevenBitText.indexOf(escape, at + 1)) {
        if (const char *name = iso2022EncodingOf(sevenBitText.sliced(at + 1)))
            return TextEncoding{name};
    }
    return std::nullopt;
}

struct Utf8Census {
    qsizetype wellFormed = 0; ///< sequences of two bytes or more
    qsizetype broken = 0;
};

Utf8Census utf8Census(QByteArrayView bytes)
{
    const auto *data = reinterpret_cast<const uint8_t *>(bytes.data());
    const qsizetype length = bytes.size();
    Utf8Census census;
    for (qsizetype at = 0; at < length;) {
        if (data[at] < 0x80) {
            ++at;
            continue;
        }
        UChar32 character;
        // NOLINTNEXTLINE(bugprone-inc-dec-in-conditions): a macro of ICU
        U8_NEXT(data, at, length, character);
        if (character >= 0)
            ++census.wellFormed;
        else if (at < length)
            ++census.broken;
    }
    return census;
}

/// text: begins with a byte above 127.
bool isUtf8(QByteArrayView text)
{
    Utf8Census census = utf8Census(text.first(std::min(text.size(), utf8SampleSize)));
    // A valid sample is enough. An invalid one may be the only bad place in a long text.
    if (census.broken > 0)
        census = utf8Census(text);
    return census.wellFormed > census.broken;
}

} // namespace

std::optional<TextEncoding> markedEncoding(QByteArrayView bytes)
{
    using namespace std::string_view_literals;
    struct Mark {
        std::string_view bytes;
        const char *name;
    };
    // The mark of UTF-32LE begins with that of UTF-16LE and must be checked first.
    static constexpr Mark marks[] = {
        {"\xEF\xBB\xBF"sv, "UTF-8"},
        {"\xFF\xFE\0\0"sv, "UTF-32LE"},
        {"\0\0\xFE\xFF"sv, "UTF-32BE"},
        {"\xFF\xFE"sv, "UTF-16LE"},
        {"\xFE\xFF"sv, "UTF-16BE"},
    };
    for (const Mark &mark : marks) {
        if (bytes.startsWith(mark.bytes))
            return TextEncoding{mark.name, static_cast<qsizetype>(mark.bytes.size())};
    }
    return std::nullopt;
}

bool mayBeUtf8(QByteArrayView bytes)
{
    const qsizetype above127 = asciiLength(bytes);
    return above127 == bytes.size() || isUtf8(bytes.sliced(above127));
}

TextEncoding detectTextEncoding(QByteArrayView bytes, const char *declared)
{
    if (const auto encoding = markedEncoding(bytes))
        return *encoding;
    if (const char *name = unmarkedUnicodeEncoding(bytes))
        return {name};
    const qsizetype above127 = asciiLength(bytes);
    if (above127 == bytes.size())
        return iso2022Encoding(bytes).value_or(TextEncoding{"UTF-8"});
    if (isUtf8(bytes.sliced(above127)))
        return {"UTF-8"};
    if (declared && std::string_view(declared) != "UTF-8")
        return {declared};
    return {likeliestLegacyEncoding(bytes, above127)};
}
