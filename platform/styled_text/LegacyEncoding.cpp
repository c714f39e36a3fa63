// SPDX-License-Identifier: MIT
#include "platform/styled_text/LegacyEncoding.h"

#include <unicode/ucsdet.h>

#include <algorithm>
#include <memory>
#include <string_view>

namespace {

constexpr qsizetype sampleSize = 65'536;

/// Bytes before the first one above 127: the words there tell the language.
constexpr qsizetype lead = 256;

/// Out of 100; what the detector says of encodings that nothing speaks against, and nothing for.
constexpr int32_t confidenceWithoutEvidence = 10;

constexpr const char *lastResort = "windows-1252";

/// What a text is read in that the detector takes for one of its encodings; null for encodings that are out
/// of the question here: Unicode and ISO-2022 have been asked about before, and EBCDIC is no desktop's.
const char *encodingFor(std::string_view detected)
{
    struct Reading {
        std::string_view detected;
        const char *name;
    };
    static constexpr Reading readings[] = {
        {"ISO-8859-1", "windows-1252"},
        {"windows-1252", "windows-1252"},
        {"ISO-8859-2", "ISO-8859-2"},
        {"windows-1250", "windows-1250"},
        {"ISO-8859-5", "ISO-8859-5"},
        {"windows-1251", "windows-1251"},
        // The letters of Ukrainian in the place of box-drawing lines.
        {"KOI8-R", "KOI8-U"},
        {"ISO-8859-6", "ISO-8859-6"},
        {"windows-1256", "windows-1256"},
        {"ISO-8859-7", "ISO-8859-7"},
        {"windows-1253", "windows-1253"},
        // And vowel points.
        {"ISO-8859-8", "windows-1255"},
        {"ISO-8859-8-I", "windows-1255"},
        {"windows-1255", "windows-1255"},
        {"ISO-8859-9", "windows-1254"},
        {"windows-1254", "windows-1254"},
        {"Shift_JIS", "Shift_JIS"},
        {"EUC-JP", "EUC-JP"},
        {"GB18030", "GB18030"},
        {"Big5", "Big5"},
        // And the syllables that are not among the 2350 of the standard.
        {"EUC-KR", "windows-949"},
    };
    const auto *found = std::find_if(std::begin(readings), std::end(readings),
        [&](const Reading &reading) { return reading.detected == detected; });
    return found == std::end(readings) ? nullptr : found->name;
}

struct CloseDetector {
    void operator()(UCharsetDetector *detector) const { ucsdet_close(detector); }
};

} // namespace

const char *likeliestLegacyEncoding(QByteArrayView bytes, qsizetype above127)
{
    // A byte of a longer character cannot be before the first one above 127, so no character is cut here.
    const QByteArrayView from = bytes.sliced(std::max<qsizetype>(above127 - lead, 0));
    const QByteArrayView sample = from.first(std::min(from.size(), sampleSize));

    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UCharsetDetector, CloseDetector> detector(ucsdet_open(&status));
    ucsdet_setText(detector.get(), sample.data(), static_cast<int32_t>(sample.size()), &status);
    int32_t matchCount = 0;
    const UCharsetMatch **matches = ucsdet_detectAll(detector.get(), &matchCount, &status);
    if (U_FAILURE(status)) // also where it finds nothing at all
        return lastResort;
    for (int32_t i = 0; i < matchCount; ++i) {
        if (ucsdet_getConfidence(matches[i], &status) <= confidenceWithoutEvidence)
            break;
        if (const char *name = encodingFor(ucsdet_getName(matches[i], &status)))
            return name;
    }
    return lastResort;
}
