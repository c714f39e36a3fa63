// SPDX-License-Identifier: MIT
#include "platform/text_encoding/UnmarkedUnicode.h"

#include <QChar>
#include <QtEndian>

#include <algorithm>

namespace {

/// A multiple of four bytes, so that no code unit is cut.
constexpr qsizetype unmarkedSampleSize = 65'536;

enum class ByteOrder { Little, Big };

template <typename Number>
Number numberAt(const char *bytes, ByteOrder order)
{
    return order == ByteOrder::Little ? qFromLittleEndian<Number>(bytes) : qFromBigEndian<Number>(bytes);
}

/// Rare in text, unless it is UTF-16 or UTF-32.
bool isControlByte(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return value < 0x20 && byte != '\t' && byte != '\n' && byte != '\f' && byte != '\r' && byte != '\x1B';
}

bool isRichInControlBytes(QByteArrayView sample)
{
    return std::count_if(sample.begin(), sample.end(), isControlByte) * 100 > sample.size();
}

bool isUtf32(QByteArrayView sample, ByteOrder order)
{
    const qsizetype count = sample.size() / 4;
    qsizetype characters = 0;
    for (qsizetype i = 0; i < count; ++i) {
        const auto value = numberAt<quint32>(sample.data() + 4 * i, order);
        if (value > 0 && value <= QChar::LastValidCodePoint && !QChar::isSurrogate(value))
            ++characters;
    }
    return count > 0 && characters >= count - count / 20;
}

/// The contents of a sample read as UTF-16 in one byte order. All counts are code units.
struct Utf16Census {
    qsizetype length = 0;
    qsizetype alphabetic = 0; ///< below U+2000, where the alphabets are
    qsizetype eastAsian = 0; ///< ideographs, kana, hangul, and their punctuation
    qsizetype pairs = 0; ///< surrogates in pairs
    qsizetype separators = 0;
};

bool isAlphabetic(char16_t unit)
{
    return unit < 0x2000 && (unit >= 0x20 || unit == '\t' || unit == '\n' || unit == '\f' || unit == '\r');
}

bool isEastAsian(char16_t unit)
{
    return (unit >= 0x2010 && unit <= 0x2042) // dashes, quotes, ellipsis
        || (unit >= 0x3000 && unit <= 0x30FF) // punctuation and kana
        || (unit >= 0x4E00 && unit <= 0x9FFF) // ideographs
        || (unit >= 0xAC00 && unit <= 0xD7A3) // hangul
        || (unit >= 0xFF01 && unit <= 0xFFEF); // wide and narrow forms
}

/// Characters of every text. In the wrong byte order they become rare ones.
bool isSeparator(char16_t unit)
{
    return unit == u' ' || unit == u'\n' || unit == u'\r' || unit == u'、' || unit == u'。' || unit == u'，';
}

Utf16Census utf16Census(QByteArrayView sample, ByteOrder order)
{
    Utf16Census census;
    census.length = sample.size() / 2;
    bool isAfterHighSurrogate = false;
    for (qsizetype i = 0; i < census.length; ++i) {
        const auto unit = numberAt<char16_t>(sample.data() + 2 * i, order);
        census.alphabetic += isAlphabetic(unit);
        census.eastAsian += isEastAsian(unit);
        census.separators += isSeparator(unit);
        if (isAfterHighSurrogate && QChar::isLowSurrogate(unit))
            census.pairs += 2;
        isAfterHighSurrogate = QChar::isHighSurrogate(unit);
    }
    return census;
}

bool isAlphabeticUtf16(const Utf16Census &census, const Utf16Census &inOtherOrder)
{
    return census.length > 1 && census.alphabetic >= census.length - census.length / 4
        && census.alphabetic > inOtherOrder.alphabetic;
}

bool isEastAsianUtf16(const Utf16Census &census)
{
    return census.alphabetic + census.eastAsian + census.pairs >= census.length - census.length / 20
        && census.separators > census.length / 50;
}

} // namespace

const char *unmarkedUnicodeEncoding(QByteArrayView bytes)
{
    const QByteArrayView sample = bytes.first(std::min(bytes.size(), unmarkedSampleSize));
    if (!isRichInControlBytes(sample))
        return nullptr;

    if (isUtf32(sample, ByteOrder::Little))
        return "UTF-32LE";
    if (isUtf32(sample, ByteOrder::Big))
        return "UTF-32BE";

    const Utf16Census little = utf16Census(sample, ByteOrder::Little);
    const Utf16Census big = utf16Census(sample, ByteOrder::Big);
    if (isAlphabeticUtf16(little, big))
        return "UTF-16LE";
    if (isAlphabeticUtf16(big, little))
        return "UTF-16BE";

    if (sample.isValidUtf8())
        return nullptr;
    if (isEastAsianUtf16(little))
        return "UTF-16LE";
    if (isEastAsianUtf16(big))
        return "UTF-16BE";
    return nullptr;
}
