// SPDX-License-Identifier: MIT
// EncodingConverter turns bytes in one encoding into text, and hides ICU's converters. Detecting the encoding
// is left to TextEncoding.
// Thread: one at a time.  Owner: the code that decodes.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

struct UConverter;

/// The whole text of some bytes. Bytes that are no character in the encoding become U+FFFD, and so does an
/// incomplete character at the end; a byte order mark is decoded like any other character. Takes time
/// proportional to the length. Throws std::bad_alloc.
/// bytes: at most INT32_MAX.  encoding: a name ICU knows, or johabEncoding.
QString decodeText(QByteArrayView bytes, const char *encoding);

/// Throws std::bad_alloc.
class EncodingConverter {
public:
    /// encoding: a name ICU knows. Any other name means ISO-8859-1, which ICU has even without its data.
    explicit EncodingConverter(const char *encoding);

    /// Whether each byte is one character.
    [[nodiscard]] bool isSingleByte() const;

    /// Appends a whole text; conversion starts in the initial state of the encoding. U+FFFD as in
    /// decodeText(). bytes: at most INT32_MAX.
    void append(QByteArrayView bytes, QString &target) const;

private:
    struct Close {
        void operator()(UConverter *converter) const;
    };

    std::unique_ptr<UConverter, Close> m_converter;
};
