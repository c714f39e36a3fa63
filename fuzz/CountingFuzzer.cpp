// SPDX-License-Identifier: MIT
// Compares the fast counter with the plain one, and the fast layout with the one that shapes whole runs. The
// first byte chooses the rules and how the others become a text, the second how often the text is repeated:
// windows of the scanner are longer than most inputs.
#include "fuzz/SoundText.h"
#include "platform/text_layout/LayoutEngine.h"
#include "text_statistics/PlainTextCounter.h"
#include "text_statistics/TextCounter.h"

#include <cstdint>

namespace {

constexpr qsizetype maxLength = 10'000;
constexpr qsizetype maxLaidOutLength = 1'000; // shaping is slow

// Characters of all classes that segmentation knows, where bytes alone would rarely form them.
constexpr QStringView alphabet =
    u"aBx1 "
    u".,;:'\"!?@_-()\t\n\r\v\u0085\u00A0\u00AD\u00B7\u00D7\u00DF\u0130\u02D7\u0301\u037E\u03A9\u0434\u05D0"
    u"\u05F3\u05F4\u0600\u060C\u0628\u064B\u0661\u06D4\u0915\u094D\u093F\u0964\u0E01\u0E31\u0E33\u1000\u104A"
    u"\u1100"
    u"\u1680\u17D4\u1AA8\u200B\u200D\u2014\u2018\u2019\u2024\u2028\u2029\u202E\u202F\u203F\u2060\u24C2\u3000"
    u"\u3002\u302A\u3042\u30AB\u30FC\u4E00\uA9CF\uAC00\uD7A3\uFE0F\uFE52\uFF0E\uFF11\uFF1A\uFF66\uFF9E\uFFFC"
    u"\U00010400\U00011047\U0001D7CE\U0001F1E9\U0001F170\U0001F3FB\U0001F600\U00020000\U000E0020";

QString textOf(int form, QByteArrayView bytes)
{
    if (form == 0)
        return QString::fromUtf8(bytes);
    QString text;
    for (qsizetype i = 0; form == 1 && i + 1 < bytes.size(); i += 2)
        text += QChar(
            static_cast<char16_t>(static_cast<uint8_t>(bytes[i]) << 8 | static_cast<uint8_t>(bytes[i + 1])));
    for (qsizetype i = 0; form > 1 && i < bytes.size(); ++i)
        text += alphabet[static_cast<uint8_t>(bytes[i]) % alphabet.size()];
    return text;
}

std::vector<qsizetype> lineStarts(LayoutEngine &engine, const AttributedString &text, double columnWidth)
{
    std::vector<qsizetype> starts;
    forEachParagraph(text.string(), [&](const Paragraph &paragraph) {
        engine.layOutParagraph(
            text, paragraph, columnWidth, [&](const LineFragment &line) { starts.push_back(line.start); });
    });
    return starts;
}

void compareLayouts(const QString &text, double columnWidth)
{
    static LayoutEngine byPairs(LayoutEngine::Shaping::ByPairs);
    static LayoutEngine byWords(LayoutEngine::Shaping::ByWords);
    static LayoutEngine plain(LayoutEngine::Shaping::WholeRuns);
    const AttributedString styled(text);
    const std::vector<qsizetype> starts = lineStarts(plain, styled, columnWidth);
    require(lineStarts(byWords, styled, columnWidth) == starts);
    require(byPairs.countLines(styled, columnWidth) == starts.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 2)
        return 0;
    const QString piece =
        textOf(data[0] / 12 % 4, QByteArrayView(data + 2, static_cast<qsizetype>(size) - 2));
    if (piece.isEmpty())
        return 0;
    const int repeats = data[1] < 240 ? 1 : 1 << (data[1] % 13);
    const QString text =
        piece.repeated(std::clamp<qsizetype>(repeats, 1, std::max<qsizetype>(1, maxLength / piece.size())));
    const int variant = data[0] % 12;
    const QString locale = variant % 2 == 0 ? QStringLiteral("en_US") : QStringLiteral("fr_FR");
    const TextRules rules{.localeIdentifier = [&locale] { return locale; },
        .minimumSentencesOfParagraph = variant / 4,
        .sentencesNeedTerminalPunctuation = variant / 2 % 2 == 1};
    static TextCounter fast;
    static PlainTextCounter plain;
    require(fast.count(text, rules) == plain.count(text, rules));
    compareLayouts(text.left(maxLaidOutLength), 20 + data[1] * 2.3);
    return 0;
}
