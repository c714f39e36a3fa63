// SPDX-License-Identifier: MIT
// Counting time by kind and size of text: bytes per second must not fall as a text grows.
#include "text_statistics/TextCounter.h"

#include <benchmark/benchmark.h>

namespace {

constexpr qsizetype million = 1'000'000;

QString repeated(const QString &piece, qsizetype length)
{
    QString text = piece.repeated(length / piece.size() + 1);
    text.truncate(length);
    return text;
}

const QString englishSentence = QStringLiteral(
    "The ferry had left an hour ago, and nobody on the quay could say when the next would come. ");

void countText(benchmark::State &state, const QString &text)
{
    const TextRules rules{
        .localeIdentifier = [] { return QStringLiteral("en_US"); }, .sentencesNeedTerminalPunctuation = true};
    TextCounter counter;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(counter.count(text, rules));
    state.SetBytesProcessed(state.iterations() * text.size());
}

void english(benchmark::State &state)
{
    countText(state, repeated(englishSentence.repeated(6) + u'\n', state.range(0)));
}

void oneParagraph(benchmark::State &state)
{
    countText(state, repeated(englishSentence, state.range(0)));
}

void oneSentence(benchmark::State &state)
{
    countText(state, repeated(QStringLiteral("on and on "), state.range(0)));
}

void oneWord(benchmark::State &state)
{
    countText(state, repeated(QStringLiteral("a"), state.range(0)));
}

void emptyLines(benchmark::State &state)
{
    countText(state, repeated(QStringLiteral("\n"), state.range(0)));
}

void loneLetters(benchmark::State &state)
{
    countText(state, repeated(QStringLiteral("b "), state.range(0)));
}

void fullStops(benchmark::State &state)
{
    countText(state, repeated(QStringLiteral("."), state.range(0)));
}

void combiningMarks(benchmark::State &state)
{
    countText(state, repeated(QStringLiteral("\u0301"), state.range(0)));
}

void chinese(benchmark::State &state)
{
    countText(state,
        repeated(QStringLiteral("\u96E8\u7684\u65E5\u5B50\u91CC\u4ED6\u5F88\u5B89\u9759"), state.range(0)));
}

void thai(benchmark::State &state)
{
    countText(state,
        repeated(QStringLiteral("\u0E20\u0E32\u0E29\u0E32\u0E44\u0E17\u0E22\u0E07\u0E48\u0E32\u0E22"),
            state.range(0)));
}

} // namespace

// Lengths are in UTF-16 code units.
BENCHMARK(english)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(oneParagraph)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(oneSentence)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(oneWord)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(emptyLines)->Arg(million / 2)->Arg(5 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(loneLetters)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(fullStops)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(combiningMarks)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(chinese)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(thai)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
