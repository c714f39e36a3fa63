// SPDX-License-Identifier: MIT
#include "platform/text_encoding/Alphabets.h"
#include "platform/text_encoding/AsciiBytes.h"
#include "platform/text_encoding/EncodingConverter.h"
#include "platform/text_encoding/EncodingEvidence.h"

#include <QChar>
#include <QSet>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <string>

namespace {

// Natural logarithms of the frequency of each, or of its ratio to the frequency of its parts.
constexpr double undefinedByte = -12;
constexpr double strangeLetter = -11; ///< of the script, but not of the language
constexpr double capital = -0.8;
constexpr double firstOfLatin = -3.5; ///< the most frequent letter beyond ASCII
constexpr double firstOfEnglish = -6.5;
constexpr double commonSign = -4.5;
constexpr double uncommonSign = -6.5;
constexpr double otherSign = -10;
constexpr double wellPlacedSign = 1.6;
constexpr double mixedScripts = -5;
constexpr double capitalInWord = -4;
constexpr double signInWord = -3;
constexpr double digitAfterLetter = -1.5;
constexpr double markWithoutLetter = -4;
constexpr double wordOfLanguage = 1; ///< for each frequent word of the language
constexpr int maxWords = 5;
constexpr double asciiLetterAmongForeign = -0.1; ///< among letters of another script

enum class Kind { Space, Digit, Sign, Opening, Closing, Dash, Lower, Capital, Letter, Mark, Undefined };

struct Character {
    char16_t unit = 0;
    char16_t lowerCase = 0;
    Kind kind = Kind::Undefined;
    QChar::Script script = QChar::Script_Unknown;
};

bool isLetter(Kind kind)
{
    return kind == Kind::Lower || kind == Kind::Capital || kind == Kind::Letter || kind == Kind::Mark;
}

Kind kindOf(QChar unit)
{
    switch (unit.unicode()) {
    case u'“': // opens in English, closes in German
    case u'‘':
    case u'ª':
    case u'º':
        return Kind::Sign;
    case u'”':
    case u'’':
    case u'…':
        return Kind::Closing;
    case u'„':
    case u'‚':
    case u'¿':
    case u'¡':
        return Kind::Opening;
    case u'–':
    case u'—':
        return Kind::Dash;
    default:
        break;
    }
    switch (unit.category()) {
    case QChar::Letter_Lowercase:
        return Kind::Lower;
    case QChar::Letter_Uppercase:
        return Kind::Capital;
    case QChar::Letter_Other:
        return Kind::Letter;
    case QChar::Mark_NonSpacing:
        return Kind::Mark;
    case QChar::Number_DecimalDigit:
        return Kind::Digit;
    case QChar::Separator_Space:
        return Kind::Space;
    case QChar::Other_Control:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
        return unit.unicode() < 0x80 ? Kind::Space : Kind::Undefined;
    default:
        return unit == QChar::ReplacementCharacter ? Kind::Undefined : Kind::Sign;
    }
}

using CodePage = std::array<Character, 256>;

CodePage makeCodePage(const char *encoding)
{
    const EncodingConverter converter(encoding);
    CodePage page;
    for (size_t value = 0; value < page.size(); ++value) {
        const auto byte = static_cast<char>(value);
        QString text;
        converter.append({&byte, 1}, text);
        if (text.size() == 1)
            page.at(value) = {text.front().unicode(), text.front().toLower().unicode(), kindOf(text.front()),
                text.front().script()};
    }
    return page;
}

const CodePage &codePageOf(const char *encoding)
{
    static const std::map<std::string, CodePage> pages = [] {
        std::map<std::string, CodePage> made;
        for (const EncodingFamily &family : encodingFamilies()) {
            for (const EncodingFamily::Member &member : family.encodings)
                made.emplace(member.encoding, makeCodePage(member.encoding));
        }
        return made;
    }();
    return pages.at(encoding);
}

/// The words of ASCII letters in a sample, in lower case.
QSet<QByteArray> asciiWords(QByteArrayView sample)
{
    QSet<QByteArray> words;
    QByteArray word;
    bool isAscii = true;
    for (const char byte : sample) {
        const bool isLetter = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
        if (isLetter || isAbove127(byte)) {
            isAscii = isAscii && isLetter;
            word.append(byte);
            continue;
        }
        if (isAscii && !word.isEmpty())
            words.insert(word.toLower());
        word.clear();
        isAscii = true;
    }
    return words;
}

double likelihoodOfWords(const QSet<QByteArray> &words, const Alphabet &alphabet)
{
    int known = 0;
    for (const QByteArray &word :
        QByteArray::fromRawData(alphabet.words.data(), static_cast<qsizetype>(alphabet.words.size()))
            .split(' '))
        known += words.contains(word);
    return wordOfLanguage * std::min(known, maxWords);
}

/// How often each byte above 127 occurs in a sample, and each pair with such a byte.
struct Census {
    struct Pair {
        uchar first;
        uchar second;
        int count;
    };
    std::array<int, 256> bytes{};
    std::vector<uchar> distinctBytes; ///< above 127
    int smallAsciiLetters = 0;
    std::vector<Pair> pairs;
};

Census censusOf(QByteArrayView sample)
{
    Census census;
    std::vector<int> counts(size_t{256} * 256);
    uchar before = '\n';
    for (const char value : sample) {
        const auto byte = static_cast<uchar>(value);
        if (byte >= 0x80)
            ++census.bytes.at(byte);
        else if (byte >= 'a' && byte <= 'z')
            ++census.smallAsciiLetters;
        if (byte >= 0x80 || before >= 0x80)
            ++counts[before * 256U + byte];
        before = byte;
    }
    for (size_t byte = 0x80; byte < census.bytes.size(); ++byte) {
        if (census.bytes.at(byte) > 0)
            census.distinctBytes.push_back(static_cast<uchar>(byte));
    }
    for (size_t i = 0; i < counts.size(); ++i) {
        if (counts[i] > 0)
            census.pairs.push_back({static_cast<uchar>(i >> 8), static_cast<uchar>(i), counts[i]});
    }
    return census;
}

double likelihoodOfLetters(Character first, Character second)
{
    double sum = 0;
    if (first.script != second.script && second.kind != Kind::Mark)
        sum += mixedScripts;
    if (first.kind == Kind::Lower && second.kind == Kind::Capital)
        sum += capitalInWord;
    return sum;
}

/// The likelihood of a pair beyond that of its two characters.
double likelihoodOfPair(Character first, Character second)
{
    if (isLetter(first.kind) && isLetter(second.kind))
        return likelihoodOfLetters(first, second);
    if (second.kind == Kind::Mark)
        return markWithoutLetter;
    switch (second.kind) {
    case Kind::Sign:
        return isLetter(first.kind) && second.unit >= 0x80 && !QChar(second.unit).isPunct() ? signInWord : 0;
    case Kind::Opening:
        return isLetter(first.kind) ? signInWord : wellPlacedSign;
    case Kind::Closing:
        return first.kind == Kind::Space ? signInWord : wellPlacedSign;
    case Kind::Dash:
        return first.kind == Kind::Space ? wellPlacedSign : 0;
    default:
        break;
    }
    if (second.kind == Kind::Digit)
        return isLetter(first.kind) ? digitAfterLetter : 0;
    if (!isLetter(second.kind) || second.kind == Kind::Capital)
        return 0;
    const bool isSignBeforeWord =
        first.kind == Kind::Sign && first.unit >= 0x80 && !QChar(first.unit).isPunct();
    return isSignBeforeWord ? signInWord : 0;
}

double likelihoodOfPairs(const Census &census, const CodePage &page)
{
    double sum = 0;
    for (const Census::Pair &pair : census.pairs)
        sum += pair.count * likelihoodOfPair(page.at(pair.first), page.at(pair.second));
    return sum;
}

double likelihoodOfSign(char16_t unit)
{
    constexpr std::u16string_view common = u"“”‘’„‚«»–—…\u00A0¿¡№،؟؛";
    constexpr std::u16string_view uncommon = u"°§©®€£±×½²³¼¾·•™‹›†ªº´¨¦΄";
    if (common.find(unit) != std::u16string_view::npos)
        return commonSign;
    return uncommon.find(unit) != std::u16string_view::npos ? uncommonSign : otherSign;
}

/// Assumes that each letter of a language is rarer than the one before it by a constant factor.
class LetterLikelihood {
public:
    LetterLikelihood(const Alphabet &alphabet, QChar::Script script)
        : m_letters(alphabet.letters)
    {
        const auto count = static_cast<double>(m_letters.size());
        if (script != QChar::Script_Latin) {
            m_first = std::log(3.8 / count);
            m_decline = 4.4 / count;
        } else if (alphabet.language == "en") {
            m_first = firstOfEnglish;
            m_decline = 0.05;
        }
    }

    double operator()(char16_t lowerCase) const
    {
        const size_t rank = m_letters.find(lowerCase);
        return rank == std::u16string_view::npos ? strangeLetter
                                                 : m_first - m_decline * static_cast<double>(rank);
    }

private:
    std::u16string_view m_letters;
    // In text in the Latin script most letters are ASCII; in English nearly all are.
    double m_first = firstOfLatin;
    double m_decline = 0.2;
};

double likelihoodOfBytes(const Census &census, const CodePage &page, const LetterLikelihood &letter)
{
    double sum = 0;
    for (const uchar byte : census.distinctBytes) {
        const Character &character = page.at(byte);
        double each = undefinedByte;
        if (isLetter(character.kind))
            each = letter(character.lowerCase) + (character.kind == Kind::Capital ? capital : 0);
        else if (character.kind != Kind::Undefined)
            each = likelihoodOfSign(character.unit);
        sum += census.bytes.at(byte) * each;
    }
    return sum;
}

} // namespace

std::vector<EncodingEvidence> singleByteEvidence(QByteArrayView sample)
{
    const Census census = censusOf(sample);
    const QSet<QByteArray> words = asciiWords(sample);
    std::vector<EncodingEvidence> evidence;
    for (const EncodingFamily &family : encodingFamilies()) {
        std::vector<double> ofPairs;
        for (const EncodingFamily::Member &member : family.encodings)
            ofPairs.push_back(likelihoodOfPairs(census, codePageOf(member.encoding)));
        const bool isLatin = family.script == QChar::Script_Latin;
        for (const Alphabet &alphabet : family.alphabets) {
            const LetterLikelihood letter(alphabet, family.script);
            const double ofAscii = isLatin ? likelihoodOfWords(words, alphabet)
                                           : census.smallAsciiLetters * asciiLetterAmongForeign;
            for (size_t i = 0; i < family.encodings.size(); ++i) {
                const EncodingFamily::Member &member = family.encodings[i];
                const double ofBytes = likelihoodOfBytes(census, codePageOf(member.encoding), letter);
                evidence.push_back(
                    {member.encoding, alphabet.language, member.prior + ofPairs[i] + ofAscii + ofBytes});
            }
        }
    }
    return evidence;
}
