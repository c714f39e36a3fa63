// SPDX-License-Identifier: MIT
// Long grapheme clusters: lines and words of a million code units, by the number of marks on each letter, and
// of sequences of emoji; code units per second.
#include "platform/text_layout/LayoutEngine.h"
#include "text_statistics/TextCounter.h"

#include <benchmark/benchmark.h>

namespace {

constexpr qsizetype unitCount = 1'000'000;
constexpr double columnWidth = 451;

/// Words of five letters, each with that number of marks.
QString markedText(char16_t letter, char16_t firstMark, qsizetype marks)
{
    QString word;
    for (int i = 0; i < 5; ++i) {
        word += QChar(static_cast<char16_t>(letter + i));
        for (qsizetype mark = 0; mark < marks; ++mark)
            word += QChar(static_cast<char16_t>(firstMark + mark % 5));
    }
    word += u' ';
    return word.repeated(unitCount / word.size());
}

/// Sequences of that number of people, joined.
QString emojiText(qsizetype people)
{
    const QString joined = QStringList(people, QStringLiteral("\U0001F468")).join(QChar(0x200D)) + u' ';
    return joined.repeated(unitCount / joined.size());
}

void countLines(benchmark::State &state, const QString &text)
{
    LayoutEngine engine;
    AttributedString styled(text);
    for (auto _ : state)
        benchmark::DoNotOptimize(engine.countLines(styled, columnWidth));
    state.SetItemsProcessed(state.iterations() * text.size());
}

void countWords(benchmark::State &state, const QString &text)
{
    const TextRules rules{.localeIdentifier = [] { return QStringLiteral("en_US"); }};
    TextCounter counter;
    for (auto _ : state)
        benchmark::DoNotOptimize(counter.count(text, rules));
    state.SetItemsProcessed(state.iterations() * text.size());
}

void latinLines(benchmark::State &state)
{
    countLines(state, markedText(u'a', 0x300, state.range(0)));
}

void arabicLines(benchmark::State &state)
{
    countLines(state, markedText(u'\u0628', 0x64B, state.range(0)));
}

void hindiLines(benchmark::State &state)
{
    countLines(state, markedText(u'\u0915', 0x951, state.range(0)));
}

void emojiLines(benchmark::State &state)
{
    countLines(state, emojiText(state.range(0)));
}

void latinWords(benchmark::State &state)
{
    countWords(state, markedText(u'a', 0x300, state.range(0)));
}

void arabicWords(benchmark::State &state)
{
    countWords(state, markedText(u'\u0628', 0x64B, state.range(0)));
}

void emojiWords(benchmark::State &state)
{
    countWords(state, emojiText(state.range(0)));
}

} // namespace

BENCHMARK(latinLines)->Arg(0)->Arg(2)->Arg(10)->Arg(30)->Arg(62)->Arg(1'000)->Unit(benchmark::kMillisecond);
BENCHMARK(arabicLines)->Arg(0)->Arg(2)->Arg(10)->Arg(30)->Arg(62)->Arg(1'000)->Unit(benchmark::kMillisecond);
BENCHMARK(hindiLines)->Arg(0)->Arg(2)->Arg(10)->Arg(30)->Arg(62)->Unit(benchmark::kMillisecond);
BENCHMARK(emojiLines)->Arg(1)->Arg(4)->Arg(16)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(latinWords)->Arg(0)->Arg(2)->Arg(62)->Unit(benchmark::kMillisecond);
BENCHMARK(arabicWords)->Arg(2)->Arg(62)->Unit(benchmark::kMillisecond);
BENCHMARK(emojiWords)->Arg(4)->Arg(1'000)->Unit(benchmark::kMillisecond);
