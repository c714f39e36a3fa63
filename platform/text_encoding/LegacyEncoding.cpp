// SPDX-License-Identifier: MIT
#include "platform/text_encoding/LegacyEncoding.h"

#include "platform/locale/CurrentLocale.h"
#include "platform/text_encoding/AsciiBytes.h"
#include "platform/text_encoding/EncodingSample.h"
#include "platform/text_encoding/MultiByteEvidence.h"
#include "platform/text_encoding/SingleByteEvidence.h"
#include "platform/text_encoding/StatisticalGuess.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace {

// Natural logarithms, as the evidence is.
constexpr double bonusOfGuess = 0.5; ///< for each byte above 127, of which six are enough for any trust
constexpr qsizetype maxBonuses = 6;
constexpr double bonusOfLocale = 2;

bool isNamed(const EncodingEvidence &evidence, const char *encoding)
{
    return encoding && std::string_view(evidence.encoding) == encoding;
}

} // namespace

const char *likeliestLegacyEncoding(QByteArrayView bytes, qsizetype above127)
{
    const QByteArray sample = stretchesAround127(bytes, above127);
    std::vector<EncodingEvidence> evidence = singleByteEvidence(sample);
    for (const EncodingEvidence &each : multiByteEvidence(sample))
        evidence.push_back(each);

    const char *const guess = statisticalGuess(sample);
    const qsizetype trust = std::min<qsizetype>(std::ranges::count_if(sample, isAbove127), maxBonuses);
    const std::string locale = currentLocaleIdentifier().toStdString();
    const std::string_view language = std::string_view(locale).substr(0, locale.find('_'));
    for (EncodingEvidence &each : evidence) {
        if (isNamed(each, guess))
            each.likelihood += bonusOfGuess * static_cast<double>(trust);
        if (each.language == language)
            each.likelihood += bonusOfLocale;
    }
    return std::ranges::max_element(evidence, {}, &EncodingEvidence::likelihood)->encoding;
}
