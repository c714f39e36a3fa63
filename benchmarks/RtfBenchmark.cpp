// SPDX-License-Identifier: MIT
// Reads RTF documents by kind. Bytes per second must not decrease as documents of one kind grow.
#include "documents/rtf/RtfReader.h"

#include <benchmark/benchmark.h>

namespace {

constexpr qsizetype million = 1'000'000;

void readDocument(benchmark::State &state, const QByteArray &piece)
{
    const QByteArray rtf =
        R"({\rtf1\ansi\ansicpg1252\deff0{\fonttbl{\f0\fcharset0 Serif;}{\f1\fcharset204 Sans;}
{\f2\fcharset134 Song;}}\pard\plain\f0\fs24 )"
        + piece.repeated(state.range(0) / piece.size()) + '}';
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(readRtf(rtf).value().length());
    state.SetBytesProcessed(state.iterations() * rtf.size());
}

void plainAscii(benchmark::State &state)
{
    readDocument(state,
        "The ferry had left an hour ago, and nobody on the quay could say when the next would come. The "
        "rain\nhad stopped, though, and the benches were dry enough to sit on.\\par\n");
}

void mixed(benchmark::State &state)
{
    readDocument(state,
        R"({\rtlch\fcs1\af0\ltrch\fcs0\insrsid123\b\i The ferry}{\cf1  had left an hour ago\u8212\'97 and }{\f1\fs20 nobody on}
 the quay {\ul could} say \ldblquote when\rdblquote\~the next would come, d\'e9j\'e0 vu.\par\pard\qj\li720\fi-360\tx720 )");
}

void cyrillicBytes(benchmark::State &state)
{
    readDocument(state, R"(\f1\'cf\'e0\'f0\'ee\'ec \'f3\'f8\'b8\'eb.\par )");
}

void unicodeWords(benchmark::State &state)
{
    readDocument(state, R"(\u1055?\u1072?\u1088?\u1086?\u1084? )");
}

void doubleBytes(benchmark::State &state)
{
    readDocument(state, R"(\f2\'b2\'e2\'ca\'d4\'b2\'e2\'ca\'d4\par )");
}

void skippedPicture(benchmark::State &state)
{
    readDocument(state, "{\\pict " + (QByteArray("0123456789abcdef").repeated(8) + '\n').repeated(100) + '}');
}

void emptyGroups(benchmark::State &state)
{
    readDocument(state, "{}");
}

void openGroups(benchmark::State &state)
{
    readDocument(state, "{");
}

void distinctFormats(benchmark::State &state)
{
    QByteArray piece;
    for (int size = 2; size < 2000; ++size)
        piece += "\\fs" + QByteArray::number(size) + " x";
    readDocument(state, piece);
}

} // namespace

BENCHMARK(plainAscii)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(mixed)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(cyrillicBytes)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(unicodeWords)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(doubleBytes)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(skippedPicture)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(emptyGroups)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(openGroups)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
BENCHMARK(distinctFormats)->Arg(2 * million)->Arg(20 * million)->Unit(benchmark::kMillisecond);
