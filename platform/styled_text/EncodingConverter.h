// SPDX-License-Identifier: MIT
// EncodingConverter turns bytes of one encoding into text. It hides ICU's converters, which it rests on.
// Thread: one at a time.  Owner: whoever decodes.
#pragma once

#include <QByteArrayView>

#include <memory>

struct UConverter;

/// Throws std::bad_alloc where the memory is short.
class EncodingConverter {
public:
    /// encoding: a name that ICU knows.
    explicit EncodingConverter(const char *encoding);

    /// Whether each byte is a character of its own.
    [[nodiscard]] bool isSingleByte() const;

    /// Converts a whole text, from the first state of the encoding on; what is no character in it becomes
    /// U+FFFD, also at a cut end. Returns how many code units it has written. bytes: at most INT32_MAX.
    /// target: has room for as many code units as there are bytes, which is never too few.
    qsizetype convert(QByteArrayView bytes, char16_t *target) const;

private:
    struct Close {
        void operator()(UConverter *converter) const;
    };

    const char *m_encoding;
    std::unique_ptr<UConverter, Close> m_converter;
};
