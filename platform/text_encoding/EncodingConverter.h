// SPDX-License-Identifier: MIT
// EncodingConverter turns bytes of one encoding into text. It hides ICU's converters, which it rests on.
// Thread: one at a time.  Owner: whoever decodes.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <memory>

struct UConverter;

/// Throws std::bad_alloc where the memory is short.
class EncodingConverter {
public:
    /// encoding: a name that ICU knows. Every other name is ISO-8859-1, which ICU has without its data.
    explicit EncodingConverter(const char *encoding);

    /// Whether each byte is a character of its own.
    [[nodiscard]] bool isSingleByte() const;

    /// Appends a whole text, from the first state of the encoding on; what is no character in it becomes
    /// U+FFFD, also at a cut end. bytes: at most INT32_MAX.
    void append(QByteArrayView bytes, QString &target) const;

private:
    struct Close {
        void operator()(UConverter *converter) const;
    };

    std::unique_ptr<UConverter, Close> m_converter;
};
