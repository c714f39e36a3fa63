// SPDX-License-Identifier: MIT
// Writes and reads RTF and flat RTFD with 20 million code units: bytes of RTF per second.
#include "documents/rtfd/RtfdReader.h"
#include "documents/rtfd/RtfdWriter.h"

#include <benchmark/benchmark.h>

namespace {

constexpr qsizetype length = 20'000'000;

QString repeatPiece(const QString &piece)
{
    QString text = piece.repeated(length / piece.size() + 1);
    text.truncate(length);
    return text;
}

const QString sentence = QStringLiteral(
    "The ferry had left an hour ago, and nobody on the quay could say when the next would come. ");

AttributedString plainAscii()
{
    return AttributedString(repeatPiece(sentence.repeated(6) + u'\n'));
}

/// Sentences in several scripts, with occasional words in another font, paragraphs in another style, and
/// pictures.
AttributedString mixed()
{
    const QString sentences[] = {sentence, QStringLiteral("Паром ушёл час назад. "),
        QStringLiteral("L\u2019a\u00E9roport \u00E9tait ferm\u00E9 \u2014 personne ne savait pourquoi. "),
        QStringLiteral("渡船一小时前就开走了。")};
    TextAttributes plain;
    plain.font = FontAttributes{QStringLiteral("Serif"), 12};
    plain.language = QStringLiteral("en");
    TextAttributes bold = plain;
    bold.font->weight = 700;
    TextAttributes indented = plain;
    indented.font->pointSize = 12.3;
    indented.paragraphStyle.headIndent = 36;
    TextAttributes picture = plain;
    picture.attachment = std::make_shared<const Attachment>(
        Attachment{QStringLiteral("picture.png"), QByteArray(100'000, 'x')});
    AttributedStringBuilder builder;
    builder.reserve(length);
    for (unsigned count = 0; builder.length() < length; ++count) {
        builder.append(sentences[count % std::size(sentences)], plain);
        builder.append(u"never ", bold);
        if (count % 7 == 0)
            builder.append(u"set off\n", indented);
        if (count % 1000 == 0)
            builder.append(u"\uFFFC", picture);
    }
    return builder.build();
}

void measureRtf(benchmark::State &state, const AttributedString &text)
{
    qsizetype size = 0;
    for ([[maybe_unused]] auto _ : state)
        size = writeRtf(text, 0, text.length()).value().size();
    state.SetBytesProcessed(state.iterations() * size);
}

void measureRtfd(benchmark::State &state, const AttributedString &text)
{
    qsizetype size = 0;
    for ([[maybe_unused]] auto _ : state)
        size = RTFDFromRange(text, 0, text.length()).value().size();
    state.SetBytesProcessed(state.iterations() * size);
}

void measureReading(benchmark::State &state, const AttributedString &text)
{
    const QByteArray bytes = RTFDFromRange(text, 0, text.length()).value();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(readFlatRtfd(bytes));
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

void rtfOfPlainAscii(benchmark::State &state)
{
    measureRtf(state, plainAscii());
}

void rtfOfMixedText(benchmark::State &state)
{
    measureRtf(state, mixed());
}

void rtfdOfPlainAscii(benchmark::State &state)
{
    measureRtfd(state, plainAscii());
}

void rtfdOfMixedText(benchmark::State &state)
{
    measureRtfd(state, mixed());
}

void plainAsciiFromRtfd(benchmark::State &state)
{
    measureReading(state, plainAscii());
}

void mixedTextFromRtfd(benchmark::State &state)
{
    measureReading(state, mixed());
}

} // namespace

BENCHMARK(rtfOfPlainAscii)->Unit(benchmark::kMillisecond);
BENCHMARK(rtfOfMixedText)->Unit(benchmark::kMillisecond);
BENCHMARK(rtfdOfPlainAscii)->Unit(benchmark::kMillisecond);
BENCHMARK(rtfdOfMixedText)->Unit(benchmark::kMillisecond);
BENCHMARK(plainAsciiFromRtfd)->Unit(benchmark::kMillisecond);
BENCHMARK(mixedTextFromRtfd)->Unit(benchmark::kMillisecond);
