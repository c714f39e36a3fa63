// SPDX-License-Identifier: MIT
// EncodingCorpus provides texts of many languages in their encodings from before Unicode: from two words to a
// page, as plain text, as a web page that declares no encoding, and as subtitles.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

struct EncodedSample {
    const char *language;
    QByteArray encoding; ///< a name ICU knows
    QString text;
    QByteArray bytes;
};

/// Short samples are shorter than a sentence.
enum class SampleLength { Short, Sentence, Long };
/// Every text in every encoding of its language.
std::vector<EncodedSample> encodedSamples(SampleLength length);
