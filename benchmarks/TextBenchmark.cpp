// SPDX-License-Identifier: MIT
// text_benchmark WORK FILE: does one kind of work on a text in UTF-8 and prints the processor time in
// seconds, for "threads" the time on the clock, the shortest of several runs. script/bench compares the
// kinds.
#include "documents/PlainTextReader.h"
#include "platform/segmentation/BreakIterator.h"
#include "platform/system/Processors.h"
#include "platform/text_layout/LayoutEngine.h"
#include "text_statistics/PlainTextCounter.h"
#include "text_statistics/TextCounter.h"
#include "text_statistics/WordCounterModel.h"

#include <QFile>
#include <QGuiApplication>
#include <QTextLayout>

#include <sys/resource.h>

#include <chrono>
#include <cstdio>
#include <functional>
#include <map>

namespace {

constexpr double columnWidth = 451; // points: A4 with margins of two inches together

using Work = std::function<quint64(const QByteArray &bytes, const QString &text)>;

double processorSeconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double wallSeconds()
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

TextRules textRules()
{
    return {
        .localeIdentifier = [] { return QStringLiteral("en_US"); }, .sentencesNeedTerminalPunctuation = true};
}

CountingRules rules()
{
    return {.text = textRules(),
        .page = {.paperName = std::nullopt,
            .paperSize = {595, 842},
            .leftMargin = 72,
            .rightMargin = 72,
            .columnBefore = columnWidth}};
}

quint64 countOnThreads(const QByteArray & /*bytes*/, const QString &text)
{
    static WordCounterModel model(rules);
    model.startThreads(availableProcessors());
    model.setAttributedStringToCount(AttributedString(text));
    return model.numberOfWords() + model.numberOfLines();
}

quint64 countAll(const QByteArray & /*bytes*/, const QString &text)
{
    WordCounterModel model(rules);
    model.setAttributedStringToCount(AttributedString(text));
    return model.numberOfWords() + model.numberOfLines();
}

quint64 countLines(const QString &text, LayoutEngine::Shaping shaping)
{
    static std::map<LayoutEngine::Shaping, LayoutEngine> engines;
    return engines.try_emplace(shaping, shaping)
        .first->second.countLines(AttributedString(text), columnWidth);
}

quint64 segment(const QString &text, BreakKind kind)
{
    BreakIterator iterator(kind);
    iterator.setText(text);
    quint64 boundaries = 0;
    while (iterator.next() >= 0)
        ++boundaries;
    return boundaries;
}

quint64 layOut(const QString &text)
{
    quint64 lines = 0;
    forEachParagraph(text, [&](const Paragraph &paragraph) {
        QTextLayout layout(paragraph.content(text).toString(), QFont(QStringLiteral("Nimbus Sans"), 12));
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(columnWidth);
            ++lines;
        }
        layout.endLayout();
    });
    return lines;
}

const std::map<QByteArray, Work> &works()
{
    static const std::map<QByteArray, Work> table{
        {"read",
            [](const QByteArray &bytes, const QString &) {
                return static_cast<quint64>(readPlainText(bytes).value().text.size());
            }},
        {"text",
            [](const QByteArray &, const QString &text) {
                return TextCounter().count(text, textRules()).numberOfWords;
            }},
        {"plain-text",
            [](const QByteArray &, const QString &text) {
                return PlainTextCounter().count(text, textRules()).numberOfWords;
            }},
        {"all", countAll},
        {"threads", countOnThreads},
        {"lines",
            [](const QByteArray &, const QString &text) {
                return countLines(text, LayoutEngine::Shaping::ByPairs);
            }},
        {"plain-lines",
            [](const QByteArray &, const QString &text) {
                return countLines(text, LayoutEngine::Shaping::WholeRuns);
            }},
        {"icu",
            [](const QByteArray &, const QString &text) {
                return segment(text, BreakKind::Word) + segment(text, BreakKind::Sentence);
            }},
        {"qtextlayout", [](const QByteArray &, const QString &text) { return layOut(text); }},
    };
    return table;
}

double bestTime(const Work &work, const QByteArray &bytes, const QString &text, double (*seconds)())
{
    constexpr int maxRuns = 5;
    constexpr double enough = 1; // second
    double best = 0;
    double all = 0;
    for (int run = 0; run < maxRuns && all < enough; ++run) {
        const double start = seconds();
        const quint64 result = work(bytes, text);
        const double time = seconds() - start;
        asm volatile("" : : "g"(result)); // keeps the compiler from removing the work
        best = run == 0 ? time : std::min(best, time);
        all += time;
    }
    return best;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    const auto work = works().find(argumentCount == 3 ? arguments[1] : "");
    QFile file(argumentCount == 3 ? QString::fromLocal8Bit(arguments[2]) : QString());
    if (work == works().end() || !file.open(QIODevice::ReadOnly)) {
        std::fputs(
            "usage: text_benchmark read|text|plain-text|all|threads|lines|plain-lines|icu|qtextlayout FILE\n",
            stderr);
        return 2;
    }
    const QByteArray bytes = file.readAll();
    const bool isOnThreads = work->first == "threads";
    std::printf("%.6f\n",
        bestTime(work->second, bytes, readPlainText(bytes).value().text,
            isOnThreads ? wallSeconds : processorSeconds));
    return 0;
}
