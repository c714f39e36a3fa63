// SPDX-License-Identifier: MIT
// Lines of generated texts of 20 MB in UTF-8, one style, 451 points wide: bytes per second, and the maximum
// resident size of the process so far. Beside our layout, its simpler forms, which give the same lines, and
// QTextLayout, paragraph by paragraph, which does not, all on shorter texts.
#include "platform/text_layout/LayoutEngine.h"

#include <QGuiApplication>
#include <QTextLayout>

#include <benchmark/benchmark.h>

#include <sys/resource.h>

#include <cmath>
#include <random>

namespace {

constexpr qsizetype byteCount = 20'000'000;
constexpr qsizetype shortByteCount = 1'000'000;
constexpr double columnWidth = 451;

struct Language {
    const char *name;
    QString syllables; // for words, separated by spaces
    QString separator; // between words
    QString fullStop;
    int maxSyllables; // per word
};

const Language languages[]{
    {"English",
        QStringLiteral(
            "the of and to in a is that it was for on are as with his they at be this from I have or by one "
            "had not but what all were when we there can an your which their said if do will each about how "
            "up out them then she ma ny some so these would o ther in to has more her two li ke him see ti "
            "me could no ma ke than first been its who now peo ple my o ver did down"),
        QStringLiteral(" "), QStringLiteral(". "), 3},
    {"German",
        QStringLiteral(
            "der die das und in zu den von mit sich auf für ist im dem nicht ein eine als auch es an wer den "
            "aus er hat daß sie nach wird bei ei ner um am sind noch wie ei nem über ei nen so zum war ha "
            "ben nur o der a ber vor zur bis mehr durch man dann soll sa gen schafts ver kehrs ge bäu de"),
        QStringLiteral(" "), QStringLiteral(". "), 6},
    {"Arabic",
        QStringLiteral("في من على أن إلى عن ما كان هذا التي مع ال كتاب بيت مدينة نهر يوم ليل كبير صغير جديد "
                       "قديم طريق ماء "
                       "سماء أرض كلمة لغة شجرة ورد باب شباك سوق بحر جبل علم ناس ولد بنت رجل امرأة سنة شهر"),
        QStringLiteral(" "), QStringLiteral(". "), 2},
    {"Chinese",
        QStringLiteral("的 一 是 不 了 人 我 在 有 他 这 中 大 来 上 国 个 到 说 们 为 子 和 你 地 出 道 也 "
                       "时 年 得 就 那 要 下 以 生 会 自 着 "
                       "去 之 过 家 学 对 可 她 里 后 小 么 心 多 天 而 能 好 都 然 没 日 于 起 还 发 成 事 "
                       "只 作 当 想 看 文 无 开 手 十 用 主 "
                       "行 方 又 如 前 所 本 见 经 头 面 公 同 三 已 老 从 动 两 长 知 民 样 现 分 将 外 但 "
                       "身 些 与 高 意 进 把 法 此 实 回 二"),
        QString(), QStringLiteral("。"), 4},
};

QStringList vocabularyOf(const Language &language, std::mt19937 &random)
{
    const QStringList syllables = language.syllables.split(u' ');
    QStringList words;
    for (int i = 0; i < 30'000; ++i) {
        QString word;
        const auto length = 1 + static_cast<int>(random() % static_cast<unsigned>(language.maxSyllables));
        for (int syllable = 0; syllable < length; ++syllable)
            word += syllables[static_cast<qsizetype>(random() % static_cast<unsigned>(syllables.size()))];
        words.append(word);
    }
    return words;
}

// Words as frequent as in natural texts (Zipf), sentences of a dozen words, paragraphs of half a dozen
// sentences.
QString textOf(const Language &language, qsizetype length)
{
    std::mt19937 random(1);
    const QStringList words = vocabularyOf(language, random);
    std::uniform_real_distribution<double> uniform(0, std::log(static_cast<double>(words.size())));
    QString text;
    qsizetype bytes = 0;
    for (int count = 1; bytes < length; ++count) {
        const qsizetype start = text.size();
        text += words[static_cast<qsizetype>(std::exp(uniform(random))) - 1];
        if (count % 72 == 0)
            text += u'\n';
        else
            text += count % 12 == 0 ? language.fullStop : language.separator;
        bytes += QStringView(text).sliced(start).toUtf8().size();
    }
    return text;
}

void report(benchmark::State &state, const Language &language, qsizetype bytes, quint64 lines)
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * bytes);
    state.SetLabel(language.name);
    state.counters["lines"] = static_cast<double>(lines);
    state.counters["residentMiB"] = static_cast<double>(usage.ru_maxrss) / 1024;
}

void countLines(benchmark::State &state, LayoutEngine::Shaping shaping, qsizetype bytes)
{
    const Language &language = languages[state.range(0)];
    const AttributedString styled(textOf(language, bytes));
    LayoutEngine engine(shaping);
    quint64 lines = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(lines = engine.countLines(styled, columnWidth));
    report(state, language, bytes, lines);
}

void countLinesWithQt(benchmark::State &state)
{
    const Language &language = languages[state.range(0)];
    const QStringList paragraphs = textOf(language, shortByteCount).split(u'\n');
    QFont font(QStringLiteral("Helvetica"));
    font.setPixelSize(12);
    quint64 lines = 0;
    for (auto _ : state) {
        lines = 0;
        for (const QString &paragraph : paragraphs) {
            QTextLayout layout(paragraph, font);
            layout.beginLayout();
            for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine(), ++lines)
                line.setLineWidth(columnWidth);
            layout.endLayout();
        }
    }
    report(state, language, shortByteCount, lines);
}

BENCHMARK_CAPTURE(countLines, ByPairs, LayoutEngine::Shaping::ByPairs, byteCount)
    ->DenseRange(0, 3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countLines, ByPairsShort, LayoutEngine::Shaping::ByPairs, shortByteCount)
    ->DenseRange(0, 3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countLines, ByWords, LayoutEngine::Shaping::ByWords, shortByteCount)
    ->DenseRange(0, 3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(countLines, WholeRuns, LayoutEngine::Shaping::WholeRuns, shortByteCount)
    ->DenseRange(0, 3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(countLinesWithQt)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argumentCount, char **arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
}
