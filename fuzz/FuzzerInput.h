// SPDX-License-Identifier: MIT
// FuzzerInput is what fuzzers have in common: what ends them, and a word on the first line of their input.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// Ends the process, which the fuzzer reports.
inline void require(bool holds)
{
    if (!holds)
        __builtin_trap();
}

/// The rest of the first line if that begins with the word, and takes the line from the bytes; otherwise
/// empty.
inline QByteArray takeFirstLine(QByteArrayView &bytes, QByteArrayView word)
{
    if (!bytes.startsWith(word))
        return {};
    const qsizetype end = bytes.indexOf('\n');
    const QByteArrayView line = bytes.first(end < 0 ? bytes.size() : end);
    bytes = bytes.sliced(end < 0 ? bytes.size() : end + 1);
    return line.sliced(word.size()).toByteArray();
}
