// SPDX-License-Identifier: MIT
#include "platform/text_encoding/EncodingSample.h"

#include "platform/text_encoding/AsciiBytes.h"

#include <algorithm>

namespace {

constexpr qsizetype maxSampleSize = 16'384;

/// Bytes of ASCII on either side of a stretch.
constexpr qsizetype context = 48;

/// In no encoding is any of them part of a longer character.
bool endsStretch(char byte)
{
    return byte == '<' || byte == '>';
}

} // namespace

QByteArray stretchesAround127(QByteArrayView bytes, qsizetype above127)
{
    QByteArray sample;
    qsizetype done = 0;
    for (qsizetype at = above127; at < bytes.size() && sample.size() < maxSampleSize;) {
        qsizetype start = at;
        while (start > done && at - start < context && !endsStretch(bytes[start - 1]))
            --start;
        const qsizetype longest = std::min(bytes.size(), start + maxSampleSize - sample.size());
        qsizetype end = at;
        for (qsizetype last = at; end < longest && end - last <= context && !endsStretch(bytes[end]); ++end) {
            if (isAbove127(bytes[end]))
                last = end;
        }
        sample.append(bytes.sliced(start, end - start)).append('\n');
        done = end;
        at = std::find_if(bytes.begin() + end, bytes.end(), isAbove127) - bytes.begin();
    }
    return sample;
}
