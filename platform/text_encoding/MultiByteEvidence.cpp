// SPDX-License-Identifier: MIT
#include "platform/text_encoding/AsciiBytes.h"
#include "platform/text_encoding/EncodingConverter.h"
#include "platform/text_encoding/EncodingEvidence.h"
#include "platform/text_encoding/JohabText.h"

#include <QSet>
#include <QString>

#include <algorithm>
#include <span>

namespace {

// Natural logarithms of the frequency of a character of each kind.
constexpr double kana = -4.2;
constexpr double katakana = -5;
constexpr double syllable = -6.3; ///< one of the 2350 syllables of KS X 1001
constexpr double rareSyllable = -9.5;
constexpr double ideograph = -7.6; ///< of the level of common ideographs
constexpr double rareIdeograph = -11;
constexpr double foreign = -12; ///< kana in Chinese, ideographs in Korean
constexpr double punctuation = -4;
constexpr double sign = -8;
constexpr double broken = -14;
constexpr double priorOfJohab = -2;
constexpr double asciiLetter = -0.1; ///< among East Asian characters
constexpr double asciiWordAlongside = -1.5; ///< without a space between

struct Range {
    uchar lead, lastLead;
    uchar trail, lastTrail;
    double likelihood;
    int length = 2;
};

struct MultiByteEncoding {
    const char *encoding;
    const char *language;
    std::span<const Range> ranges; ///< the first match counts
};

constexpr Range shiftJis[] = {
    {0x81, 0x81, 0x41, 0x49, punctuation}, {0x81, 0x81, 0x58, 0x5B, punctuation},
    {0x81, 0x81, 0x75, 0x7A, punctuation}, {0x81, 0x81, 0x40, 0x40, punctuation},
    {0x81, 0x81, 0x40, 0xFC, sign}, {0x82, 0x82, 0x9F, 0xF1, kana}, {0x83, 0x83, 0x40, 0x96, katakana},
    {0x82, 0x84, 0x40, 0xFC, sign}, {0x88, 0x97, 0x40, 0xFC, ideograph}, {0x98, 0x98, 0x40, 0x72, ideograph},
    {0x87, 0x9F, 0x40, 0xFC, rareIdeograph}, {0xE0, 0xEA, 0x40, 0xFC, rareIdeograph},
    {0xED, 0xEE, 0x40, 0xFC, rareIdeograph}, {0xFA, 0xFC, 0x40, 0xFC, rareIdeograph},
    {0xA1, 0xDF, 0, 0xFF, sign, 1}, // half-width katakana
};

constexpr Range eucJp[] = {
    {0xA1, 0xA1, 0xA2, 0xAA, punctuation},
    {0xA1, 0xA1, 0xB9, 0xBC, punctuation},
    {0xA1, 0xA1, 0xD6, 0xDB, punctuation},
    {0xA1, 0xA1, 0xA1, 0xA1, punctuation},
    {0xA4, 0xA4, 0xA1, 0xF3, kana},
    {0xA5, 0xA5, 0xA1, 0xF6, katakana},
    {0xA1, 0xA8, 0xA1, 0xFE, sign},
    {0xB0, 0xCF, 0xA1, 0xFE, ideograph},
    {0xD0, 0xF4, 0xA1, 0xFE, rareIdeograph},
    {0xAD, 0xAD, 0xA1, 0xFE, sign},
    {0xF9, 0xFC, 0xA1, 0xFE, rareIdeograph},
    {0x8E, 0x8E, 0xA1, 0xDF, -8},
    {0x8F, 0x8F, 0xA1, 0xFE, rareIdeograph, 3},
};

constexpr Range gb18030[] = {
    {0xA1, 0xA1, 0xA2, 0xA4, punctuation},
    {0xA1, 0xA1, 0xAA, 0xAB, sign},
    {0xA1, 0xA1, 0xAD, 0xB1, punctuation},
    {0xA1, 0xA1, 0xB6, 0xB7, punctuation},
    {0xA1, 0xA1, 0xA1, 0xA1, punctuation},
    {0xA3, 0xA3, 0xA1, 0xBF, punctuation},
    {0xA4, 0xA5, 0xA1, 0xF6, foreign},
    {0xA1, 0xA9, 0xA1, 0xFE, sign},
    {0xB0, 0xD7, 0xA1, 0xFE, ideograph},
    {0xD8, 0xF7, 0xA1, 0xFE, rareIdeograph},
    {0x81, 0xFE, 0x40, 0x7E, rareIdeograph},
    {0x81, 0xFE, 0x80, 0xFE, rareIdeograph},
    {0x81, 0x84, 0x30, 0x39, foreign, 4},
    {0x95, 0x98, 0x30, 0x39, foreign, 4},
};

constexpr Range big5[] = {
    {0xA1, 0xA1, 0x40, 0x49, punctuation},
    {0xA1, 0xA1, 0x5D, 0x7E, punctuation},
    {0xA1, 0xA1, 0xA1, 0xAC, punctuation},
    {0xA1, 0xA3, 0x40, 0x7E, sign},
    {0xA1, 0xA3, 0xA1, 0xFE, sign},
    {0xA4, 0xC5, 0x40, 0x7E, ideograph},
    {0xA4, 0xC5, 0xA1, 0xFE, ideograph},
    {0xC6, 0xC6, 0x40, 0x7E, ideograph},
    {0xC9, 0xF9, 0x40, 0x7E, rareIdeograph},
    {0xC9, 0xF9, 0xA1, 0xFE, rareIdeograph},
    {0x87, 0xFE, 0x40, 0x7E, foreign},
    {0x87, 0xFE, 0xA1, 0xFE, foreign},
};

constexpr Range eucTw[] = {
    {0xA1, 0xA1, 0xA1, 0xE8, punctuation},
    {0xA1, 0xA6, 0xA1, 0xFE, sign},
    {0xC4, 0xFD, 0xA1, 0xFE, ideograph},
    {0x8E, 0x8E, 0xA1, 0xA7, rareIdeograph, 4},
};

constexpr Range windows949[] = {
    {0xA1, 0xA1, 0xA2, 0xA6, punctuation},
    {0xA1, 0xA1, 0xAE, 0xBD, punctuation},
    {0xA1, 0xAC, 0xA1, 0xFE, sign},
    {0xB0, 0xC8, 0xA1, 0xFE, syllable},
    {0xCA, 0xFD, 0xA1, 0xFE, foreign},
    {0x81, 0xC6, 0x41, 0x5A, rareSyllable},
    {0x81, 0xC6, 0x61, 0x7A, rareSyllable},
    {0x81, 0xA0, 0x81, 0xFE, rareSyllable},
    {0xA1, 0xC6, 0x81, 0xA0, rareSyllable},
};

constexpr MultiByteEncoding encodings[] = {
    {"Shift_JIS", "ja", shiftJis},
    {"EUC-JP", "ja", eucJp},
    {"gb18030", "zh", gb18030},
    {"Big5-HKSCS", "zh", big5},
    {"windows-949", "ko", windows949},
    {"EUC-TW", "zh", eucTw},
};

const Range *rangeAt(QByteArrayView rest, std::span<const Range> ranges)
{
    const auto lead = static_cast<uchar>(rest[0]);
    const auto trail = static_cast<uchar>(rest.size() > 1 ? rest[1] : '\0');
    const auto found = std::ranges::find_if(ranges, [&](const Range &range) {
        return lead >= range.lead && lead <= range.lastLead && trail >= range.trail
            && trail <= range.lastTrail;
    });
    return found == ranges.end() || found->length > rest.size() ? nullptr : &*found;
}

bool isSmallLetter(char byte)
{
    return byte >= 'a' && byte <= 'z';
}

double likelihoodOf(QByteArrayView sample, std::span<const Range> ranges)
{
    double sum = 0;
    for (qsizetype at = 0; at < sample.size();) {
        if (!isAbove127(sample[at])) {
            sum += isSmallLetter(sample[at]) ? asciiLetter : 0;
            ++at;
            continue;
        }
        if (at > 0 && isSmallLetter(sample[at - 1]))
            sum += asciiWordAlongside;
        const Range *const range = rangeAt(sample.sliced(at), ranges);
        sum += range ? range->likelihood : broken;
        at += range ? range->length : 1;
        if (at < sample.size() && isSmallLetter(sample[at]))
            sum += asciiWordAlongside;
    }
    return sum;
}

/// The 2350 syllables of KS X 1001, which EUC-KR stores in 25 rows of 94.
QSet<char16_t> makeCommonSyllables()
{
    const EncodingConverter eucKr("windows-949");
    QByteArray bytes;
    for (int row = 0xB0; row <= 0xC8; ++row) {
        for (int cell = 0xA1; cell <= 0xFE; ++cell)
            bytes.append(static_cast<char>(row)).append(static_cast<char>(cell));
    }
    QString text;
    eucKr.append(bytes, text);
    QSet<char16_t> syllables;
    for (const QChar unit : text)
        syllables.insert(unit.unicode());
    return syllables;
}

double likelihoodOfJohab(QByteArrayView sample)
{
    static const QSet<char16_t> commonSyllables = makeCommonSyllables();
    double sum = priorOfJohab;
    for (const QChar unit : textOfJohab(sample)) {
        if (unit.unicode() < 0x80)
            sum += isSmallLetter(unit.toLatin1()) ? asciiLetter : 0;
        else if (unit == QChar::ReplacementCharacter)
            sum += broken;
        else if (unit.script() == QChar::Script_Hangul)
            sum += commonSyllables.contains(unit.unicode()) ? syllable : rareSyllable;
        else
            sum += unit.isLetter() ? foreign : sign;
    }
    return sum;
}

} // namespace

std::vector<EncodingEvidence> multiByteEvidence(QByteArrayView sample)
{
    std::vector<EncodingEvidence> evidence;
    for (const MultiByteEncoding &each : encodings)
        evidence.push_back({each.encoding, each.language, likelihoodOf(sample, each.ranges)});
    evidence.push_back({johabEncoding, "ko", likelihoodOfJohab(sample)});
    return evidence;
}
