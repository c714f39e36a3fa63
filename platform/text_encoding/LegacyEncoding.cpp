// SPDX-License-Identifier: MIT
#include "platform/text_encoding/LegacyEncoding.h"

#include "platform/locale/CurrentLocale.h"
#include "platform/text_encoding/AsciiBytes.h"
#include "platform/text_encoding/EncodingEvidence.h"
#include "platform/text_encoding/EncodingLabels.h"

#include <QByteArray>

#include <algorithm>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

#include <uchardet.h>

namespace {

// Natural logarithms, comparable with the likelihoods.
constexpr double guessBonus = 0.5; ///< for each byte above 127, up to maxGuessBonuses
constexpr qsizetype maxGuessBonuses = 6;
constexpr double localeBonus = 2;

constexpr qsizetype maxSampleSize = 16'384;

/// Bytes of ASCII to keep on either side of a passage.
constexpr qsizetype contextLength = 48;

/// Bytes that are never part of a longer character. They are the edges of HTML and XML tags.
bool endsPassage(char byte)
{
    return byte == '<' || byte == '>';
}

/// The passages around bytes above 127, each on a line of its own, with a few words of ASCII on either side,
/// but without tags of HTML or XML. above127: the position of the first byte above 127.
QByteArray passagesAround127(QByteArrayView bytes, qsizetype above127)
{
    QByteArray sample;
    qsizetype done = 0;
    for (qsizetype at = above127; at < bytes.size() && sample.size() < maxSampleSize;) {
        qsizetype start = at;
        while (start > done && at - start < contextLength && !endsPassage(bytes[start - 1]))
            --start;
        const qsizetype limit = std::min(bytes.size(), start + maxSampleSize - sample.size());
        qsizetype end = at;
        for (qsizetype last = at; end < limit && end - last <= contextLength && !endsPassage(bytes[end]);
             ++end) {
            if (isAbove127(bytes[end]))
                last = end;
        }
        sample.append(bytes.sliced(start, end - start)).append('\n');
        done = end;
        at = std::find_if(bytes.begin() + end, bytes.end(), isAbove127) - bytes.begin();
    }
    return sample;
}

struct DeleteDetector {
    void operator()(uchardet_t detector) const { uchardet_delete(detector); }
};

/// The encoding that uchardet detects, by a name ICU knows, or null. Its language models work well on long
/// texts, but often fail on a few words, and lack DOS in the West, Ukrainian and Johab.
const char *statisticalGuess(QByteArrayView sample)
{
    const std::unique_ptr<std::remove_pointer_t<uchardet_t>, DeleteDetector> detector(uchardet_new());
    if (!detector
        || uchardet_handle_data(detector.get(), sample.data(), static_cast<size_t>(sample.size())) != 0)
        return nullptr;
    uchardet_data_end(detector.get());
    return encodingOfLabel(QByteArrayView(uchardet_get_charset(detector.get())));
}

bool isNamed(const EncodingEvidence &evidence, const char *encoding)
{
    return encoding && std::string_view(evidence.encoding) == encoding;
}

} // namespace

const char *likeliestLegacyEncoding(QByteArrayView bytes, qsizetype above127)
{
    const QByteArray sample = passagesAround127(bytes, above127);
    std::vector<EncodingEvidence> evidence = singleByteEvidence(sample);
    for (const EncodingEvidence &each : multiByteEvidence(sample))
        evidence.push_back(each);

    const char *const guess = statisticalGuess(sample);
    const qsizetype bonuses = std::min<qsizetype>(std::ranges::count_if(sample, isAbove127), maxGuessBonuses);
    const std::string locale = currentLocaleIdentifier().toStdString();
    const std::string_view language = std::string_view(locale).substr(0, locale.find('_'));
    for (EncodingEvidence &each : evidence) {
        if (isNamed(each, guess))
            each.likelihood += guessBonus * static_cast<double>(bonuses);
        if (each.language == language)
            each.likelihood += localeBonus;
    }
    return std::ranges::max_element(evidence, {}, &EncodingEvidence::likelihood)->encoding;
}
