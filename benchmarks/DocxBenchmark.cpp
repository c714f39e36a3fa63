// SPDX-License-Identifier: MIT
// Reads generated Word documents by the size of their main part in bytes: reports bytes of that part per
// second, and the peak resident size of the process.
#include "documents/reading/DocumentReader.h"
#include "tests/documents/docx/PackageWriter.h"

#include <benchmark/benchmark.h>

#include <QFile>

#include <random>

namespace {

constexpr qsizetype megabyte = 1'000'000;

QByteArray wordsOf(std::mt19937 &random)
{
    QByteArray words;
    for (unsigned count = 3 + random() % 10; count > 0; --count) {
        for (unsigned letters = 2 + random() % 8; letters > 0; --letters)
            words += static_cast<char>('a' + random() % 26);
        words += ' ';
    }
    return words;
}

/// Paragraphs of a few runs, every other one with direct formatting, as word processors write them.
QByteArray bodyOf(qsizetype length)
{
    std::mt19937 random(1);
    const QByteArray formats[]{"", "<w:rPr><w:b/></w:rPr>",
        "<w:rPr><w:rFonts w:ascii='Calibri' w:hAnsi='Calibri'/><w:sz w:val='24'/></w:rPr>",
        "<w:rPr><w:lang w:val='en-GB'/></w:rPr>"};
    QByteArray body;
    while (body.size() < length) {
        body += "<w:p w:rsidR='00AB12CD' w:rsidRDefault='00AB12CD'><w:pPr><w:pStyle w:val='Normal'/>"
                "<w:jc w:val='both'/></w:pPr>";
        for (unsigned runs = 2 + random() % 7; runs > 0; --runs)
            body += "<w:r w:rsidR='00AB12CD'>" + formats[random() % 4] + "<w:t xml:space='preserve'>"
                + wordsOf(random) + "</w:t></w:r>";
        body += "</w:p>";
    }
    return body;
}

/// Resets the peak resident size of the process.
void resetPeakSize()
{
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

double peakMebibytes()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray status = file.readAll();
    const qsizetype start = status.indexOf("VmHWM:") + 6;
    return status.sliced(start, status.indexOf("kB", start) - start).trimmed().toDouble() / 1024;
}

void readGeneratedDocument(benchmark::State &state)
{
    const auto length = static_cast<qsizetype>(state.range(0));
    WordPackage document{.body = bodyOf(length),
        .styles =
            "<w:style w:type='paragraph' w:default='1' w:styleId='Normal'><w:rPr><w:sz w:val='22'/></w:rPr>"
            "</w:style>"};
    document.method = ZipWriter::Method::Deflated;
    const QByteArray bytes = document.bytes();
    document = {};
    qsizetype units = 0;
    resetPeakSize();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(units = readDocument(DocumentKind::WordDocument, bytes).value().length());
    state.SetBytesProcessed(state.iterations() * length);
    state.counters["units"] = static_cast<double>(units);
    state.counters["residentMiB"] = peakMebibytes();
}

} // namespace

BENCHMARK(readGeneratedDocument)->Arg(5 * megabyte)->Arg(50 * megabyte)->Unit(benchmark::kMillisecond);
