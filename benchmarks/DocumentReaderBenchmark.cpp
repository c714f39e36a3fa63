// SPDX-License-Identifier: MIT
// Reading a document through the program that reads documents, beside reading it in this process. The first
// number of a row is the kind of the document, the second its length in kilobytes. The program that waits is
// ready before each document, as it is when a user opens one. The memory is the largest of all programs so
// far, or that of this process if it was larger when it started one: run a row alone to know it.
#include "documents/loading/SandboxedReader.h"
#include "tests/documents/docx/PackageWriter.h"
#include "tests/documents/odt/OdtWriter.h"

#include <benchmark/benchmark.h>

#include <sys/resource.h>

#include <chrono>
#include <cstdlib>
#include <thread>

namespace {

const QByteArray sentence("The harbour was quiet, and the boats had not come back before the evening. ");

QByteArray documentOf(DocumentKind kind, qsizetype kilobytes)
{
    const qsizetype length = kilobytes * 1'000;
    switch (kind) {
    case DocumentKind::Rtf: {
        const QByteArray paragraph = "\\pard\\fi360 " + sentence + "{\\b bold} " + sentence + "\\par\n";
        return "{\\rtf1\\ansi{\\fonttbl\\f0 Times;}\\f0\\fs24 "
            + paragraph.repeated(length / paragraph.size() + 1) + '}';
    }
    case DocumentKind::Html: {
        const QByteArray paragraph = "<p>" + sentence + "<b>bold</b> " + sentence + "</p>\n";
        return "<!doctype html>" + paragraph.repeated(length / paragraph.size() + 1);
    }
    case DocumentKind::OpenDocument: {
        const QByteArray paragraph =
            "<text:p>" + sentence + "<text:span text:style-name=\"T1\">bold</text:span></text:p>";
        return OpenDocumentText{.body = paragraph.repeated(length / paragraph.size() + 1),
            .automaticStyles = "<style:style style:name=\"T1\" style:family=\"text\">"
                               "<style:text-properties fo:font-weight=\"bold\"/></style:style>"}
            .package();
    }
    default: {
        const QByteArray paragraph = "<w:p><w:pPr><w:ind w:firstLine=\"360\"/></w:pPr><w:r><w:t>" + sentence
            + "</w:t></w:r><w:r><w:rPr><w:b/></w:rPr><w:t>bold</w:t></w:r></w:p>";
        return WordPackage{.body = paragraph.repeated(length / paragraph.size() + 1)}.bytes();
    }
    }
}

double childrenMegabytes()
{
    rusage usage{};
    ::getrusage(RUSAGE_CHILDREN, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1'024;
}

void readHere(benchmark::State &state)
{
    const auto kind = static_cast<DocumentKind>(state.range(0));
    const QByteArray bytes = documentOf(kind, state.range(1));
    for (auto _ : state)
        benchmark::DoNotOptimize(readDocument(kind, bytes).value().length());
    state.SetBytesProcessed(state.iterations() * bytes.size());
}

void readInProgram(benchmark::State &state)
{
    const auto kind = static_cast<DocumentKind>(state.range(0));
    const QByteArray bytes = documentOf(kind, state.range(1));
    SandboxedReader reader;
    reader.prepare();
    for (auto _ : state) {
        state.PauseTiming();
        std::this_thread::sleep_for(std::chrono::milliseconds(150)); // until the next program is ready
        state.ResumeTiming();
        benchmark::DoNotOptimize(reader.read(kind, bytes).value().length());
    }
    state.SetBytesProcessed(state.iterations() * bytes.size());
    state.counters["largest_reader_MB"] = childrenMegabytes();
}

void documents(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Unit(benchmark::kMicrosecond)->UseRealTime()->MinTime(0.1);
    for (const DocumentKind kind :
        {DocumentKind::Rtf, DocumentKind::Html, DocumentKind::WordDocument, DocumentKind::OpenDocument}) {
        for (const int kilobytes : {10, 1'000, 20'000})
            benchmark->Args({static_cast<int>(kind), kilobytes});
    }
}

} // namespace

BENCHMARK(readHere)->Apply(documents);
BENCHMARK(readInProgram)->Apply(documents);
