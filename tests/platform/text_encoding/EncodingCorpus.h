// SPDX-License-Identifier: MIT
// EncodingCorpus is texts of many languages in the encodings that they were written in before Unicode: from
// two words to a page, as plain text, as a web page that names no encoding, and as subtitles. Thread: any.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

struct EncodedSample {
    const char *language;
    QByteArray encoding; ///< as ICU knows it
    QString text;
    QByteArray bytes;
};

/// Every text with every encoding of its language; those of less than a sentence are short.
enum class SampleLength { Short, Sentence, Long };
std::vector<EncodedSample> encodedSamples(SampleLength length);
