// SPDX-License-Identifier: MIT
#include "documents/reading/TextBytes.h"

#include "platform/text_encoding/EncodingConverter.h"
#include "platform/text_encoding/TextEncoding.h"
#include "platform/text_encoding/UnmarkedUnicode.h"

#include <QChar>
#include <QString>

#include <algorithm>
#include <cstring>
#include <optional>

namespace {

/// Bytes.
constexpr qsizetype unicodeSampleSize = 65'536;

/// Code units. Binary formats begin with numbers, which are control characters or no characters.
constexpr qsizetype headerLength = 64;

struct ByteCensus {
    qsizetype nuls = 0;
    qsizetype controls = 0; ///< control characters that are rare in text, NUL included

    void add(char byte)
    {
        const auto value = static_cast<uchar>(byte);
        nuls += value == 0;
        controls += value < 0x08 || (value >= 0x10 && value <= 0x1A) || (value >= 0x1C && value <= 0x1F);
    }
};

/// A text of that length may have so many, even if it is valid UTF-8.
qsizetype maxNuls(qsizetype length)
{
    return std::max<qsizetype>(length / 1000, 1);
}

/// Stops once there are more NULs than a text may have.
ByteCensus byteCensus(QByteArrayView bytes)
{
    ByteCensus census;
    const qsizetype allowed = maxNuls(bytes.size());
    // Eight at a time, because most bytes of a text are no control characters.
    constexpr qsizetype width = 8;
    qsizetype at = 0;
    for (quint64 eight; at + width <= bytes.size() && census.nuls <= allowed; at += width) {
        std::memcpy(&eight, bytes.data() + at, width);
        const bool hasControls = ((eight - 0x2020'2020'2020'2020) & ~eight & 0x8080'8080'8080'8080) != 0;
        for (qsizetype i = 0; hasControls && i < width; ++i)
            census.add(bytes[at + i]);
    }
    for (; at < bytes.size() && census.nuls <= allowed; ++at)
        census.add(bytes[at]);
    return census;
}

/// Old systems filled the last block of a text with U+001A.
QByteArrayView withoutEndMarks(QByteArrayView bytes)
{
    while (bytes.endsWith('\x1A'))
        bytes.chop(1);
    return bytes;
}

bool isOdd(QChar unit)
{
    switch (unit.category()) {
    case QChar::Other_Control:
        return unit < u'\b' || (unit > u'\x0F' && unit != u'\x1A' && unit != u'\x1B' && unit != u'\x85');
    case QChar::Other_NotAssigned:
        return true;
    default:
        return unit == QChar::ReplacementCharacter;
    }
}

/// Whether the bytes, once decoded, have hardly any characters that text has not, and none where other data
/// has a header. Other bytes decode to many of them.
bool isWrittenIn(const char *encoding, QByteArrayView bytes)
{
    const qsizetype length = std::min(bytes.size(), unicodeSampleSize);
    const qsizetype unitLength = QByteArrayView(encoding).startsWith("UTF-32") ? 4 : 2;
    const QString text = decodeText(bytes.first(length - length % unitLength), encoding);
    const auto *const header = text.begin() + std::min(text.size() - 1, headerLength);
    return std::count_if(text.begin(), text.end(), isOdd) * 30 <= text.size()
        && (text.isEmpty() || std::find_if(text.begin(), header, isOdd) == header);
}

} // namespace

TextEvidence textEvidence(QByteArrayView bytes)
{
    const std::optional<TextEncoding> marked = markedEncoding(bytes);
    if (marked && std::strcmp(marked->name, "UTF-8") != 0)
        return isWrittenIn(marked->name, bytes.sliced(marked->markLength)) ? TextEvidence::Clear
                                                                           : TextEvidence::None;
    const auto [nuls, controls] = byteCensus(withoutEndMarks(bytes));
    if (controls == 0)
        return TextEvidence::Clear;
    if (const char *const encoding = unmarkedUnicodeEncoding(bytes); encoding && isWrittenIn(encoding, bytes))
        return TextEvidence::Clear;
    if (controls == 1)
        return TextEvidence::Likely;
    qsizetype maxControls = bytes.size() / (bytes.isValidUtf8() ? 3 : 20);
    if (nuls > 0)
        maxControls = maxNuls(bytes.size());
    return controls <= maxControls ? TextEvidence::Likely : TextEvidence::None;
}
