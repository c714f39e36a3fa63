// SPDX-License-Identifier: MIT
// Reads web pages by kind and size. Bytes per second must not decrease as pages of one kind grow.
#include "documents/html/HtmlReader.h"

#include <benchmark/benchmark.h>

namespace {

constexpr qsizetype million = 1'000'000;

const QByteArray sentence =
    "The ferry had left an hour ago, and nobody on the quay could say when the next would come. ";

void readPage(benchmark::State &state, const QByteArray &piece)
{
    const QByteArray page =
        "<!DOCTYPE html><meta charset=utf-8>" + piece.repeated(state.range(0) / piece.size());
    for ([[maybe_unused]] auto _ : state) {
        const Result<AttributedString, DocumentError> read = readHtml(page);
        if (!read)
            state.SkipWithError("the page cannot be read");
    }
    state.SetBytesProcessed(state.iterations() * page.size());
}

void paragraphs(benchmark::State &state)
{
    readPage(state, "<p>" + sentence.repeated(6) + "</p>\n");
}

void oneText(benchmark::State &state)
{
    readPage(state, sentence);
}

void tables(benchmark::State &state)
{
    readPage(state,
        "<table><tr><th>Departure</th><th>Quay</th></tr>\n<tr><td>07:40</td><td>3</td></tr>\n"
        "<tr><td>09:15</td><td>1, at <em>low</em> water</td></tr></table>\n");
}

void inlineStyles(benchmark::State &state)
{
    const QByteArray start =
        "<span style=\"font-size: 11pt; font-weight: bold; font-family: 'Gill Sans', serif\">";
    readPage(
        state, start.repeated(20) + "The ferry had left" + QByteArray("</span> an hour ago").repeated(20));
}

void emptyElements(benchmark::State &state)
{
    readPage(state, "<p>x");
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
}

BENCHMARK(paragraphs)->Apply(sizes);
BENCHMARK(oneText)->Apply(sizes);
BENCHMARK(tables)->Apply(sizes);
BENCHMARK(inlineStyles)->Apply(sizes);
BENCHMARK(emptyElements)->Apply(sizes);

} // namespace
