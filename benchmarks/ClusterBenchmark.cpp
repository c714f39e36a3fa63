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

QString latin(qsizetype marks)
{
    return markedText(u'a', 0x300, marks);
}

QString arabic(qsizetype marks)
{
    return markedText(u'\u0628', 0x64B, marks);
}

QString hindi(qsizetype marks)
{
    return markedText(u'\u0915', 0x951, marks);
}

/// Sequences of that number of people, joined.
QString emoji(qsizetype people)
{
    const QString joined = QStringList(people, QStringLiteral("\U0001F468")).join(QChar(0x200D)) + u' ';
    return joined.repeated(unitCount / joined.size());
}

void countLines(benchmark::State &state, QString (*textOf)(qsizetype))
{
    const QString text = textOf(state.range(0));
    LayoutEngine engine;
    AttributedString styled(text);
    for (auto _ : state)
        benchmark::DoNotOptimize(engine.countLines(styled, columnWidth));
    state.SetItemsProcessed(state.iterations() * text.size());
}

void countWords(benchmark::State &state, QString (*textOf)(qsizetype))
{
    const QString text = textOf(state.range(0));
    const TextRules rules{.localeIdentifier = [] { return QStringLiteral("en_US"); }};
    TextCounter counter;
    for (auto _ : state)
        benchmark::DoNotOptimize(counter.count(text, rules));
    state.SetItemsProcessed(state.iterations() * text.size());
}

} // namespace

BENCHMARK_CAPTURE(countLines, latin, latin)
    ->ArgsProduct({{0, 2, 10, 30, 62, 1'000}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countLines, arabic, arabic)
    ->ArgsProduct({{0, 2, 10, 30, 62, 1'000}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countLines, hindi, hindi)->ArgsProduct({{0, 2, 10, 30, 62}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countLines, emoji, emoji)
    ->ArgsProduct({{1, 4, 16, 1'000, 100'000}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countWords, latin, latin)->ArgsProduct({{0, 2, 62}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countWords, arabic, arabic)->ArgsProduct({{2, 62}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countWords, emoji, emoji)->ArgsProduct({{4, 1'000}})->Unit(benchmark::kMillisecond);
