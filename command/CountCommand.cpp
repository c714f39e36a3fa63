// SPDX-License-Identifier: MIT
// "quillbay count": counts files, many of them on all processors, and prints the counts in their order. A
// file that cannot be counted is reported on standard error; the others are still counted.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/CountArguments.h"
#include "command/CountReport.h"
#include "command/FileNames.h"
#include "command/FirstLaunchStep.h"
#include "command/FolderWalk.h"
#include "command/NamedDocument.h"
#include "command/ParallelCount.h"
#include "command/ProgressLine.h"
#include "command/RulesReport.h"
#include "documents/reading/KindDetection.h"
#include "documents/rtfd/RtfdReader.h"
#include "platform/system/Processors.h"
#include "platform/system/Result.h"
#include "platform/system/StandardOutput.h"
#include "platform/system/SystemError.h"
#include "presentation/ServiceCounter.h"
#include "text_statistics/ColumnCounter.h"
#include "text_statistics/MeasuringSurface.h"
#include "text_statistics/PageCounter.h"
#include "text_statistics/WordCounterModel.h"

#include <QSet>

#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <mutex>
#include <new>
#include <utility>
#include <vector>

namespace {

/// 0 for anything but a regular file.
qint64 sizeOf(const QByteArray &name)
{
    struct stat status { };
    return ::stat(name.constData(), &status) == 0 && S_ISREG(status.st_mode) ? status.st_size : 0;
}

qint64 sizeOfAll(const QByteArrayList &names)
{
    qint64 sum = 0;
    for (const QByteArray &name : names)
        sum += sizeOf(name);
    return sum;
}

/// Each thread lists and loads fonts of its own, which takes as long as counting this much.
int threadsFor(const QByteArrayList &names, qint64 size)
{
    constexpr qint64 sizePerThread = 262'144; // bytes
    constexpr qint64 filesPerThread = 32;
    if (names.contains(standardInputName))
        return 1; // all of its names stand for one input
    const qint64 worthwhile = std::max(size / sizePerThread, names.size() / filesPerThread);
    return static_cast<int>(std::clamp<qint64>(
        worthwhile, 1, std::min<qint64>(availableProcessors(), std::max<qsizetype>(names.size(), 1))));
}

Result<FileCounts, QString> withoutFurther(const Result<QBYWordCounterStats, QString> &stats)
{
    return stats ? Result<FileCounts, QString>(FileCounts{stats.value(), {}}) : stats.error();
}

constexpr qint64 minLargeSize = qint64{16} * 1024 * 1024; // bytes

struct CountedFile {
    QByteArray name;
    FileCounts counts;
};

constexpr int missedGoalStatus = 3;

class CountCommand {
public:
    explicit CountCommand(CountArguments arguments)
        : m_arguments(std::move(arguments))
    {
    }

    /// The exit status: 1 if a file could not be counted or the counts could not be printed, missedGoalStatus
    /// if a goal is not reached, otherwise 0.
    int run();

private:
    [[nodiscard]] QByteArrayList inputNames();
    void chooseColumns();
    void countAll(const QByteArrayList &names);
    void sort(std::vector<CountedFile> &files) const;
    void compareWithGoal(const QBYWordCounterStats &total);
    [[nodiscard]] QByteArrayList withoutFolders(const QByteArrayList &names);
    void explainRules(const QByteArrayList &names);
    std::optional<FileCounts> count(const QByteArray &name, ProgressLine &progress);
    std::optional<FileCounts> take(
        const QByteArray &name, const Result<FileCounts, QString> &stats, ProgressLine &progress);
    std::unique_ptr<ParallelCount> countInParallel(const QByteArrayList &names, int threads);
    /// Why a document is not counted; empty for one that is left out. On any thread, like the next one.
    [[nodiscard]] QString failureOf(const QByteArray &name, const DocumentError &error) const;
    Result<FileCounts, QString> countOnThread(
        const QByteArray &name, ColumnCounter &counter, ParallelCount::Position &position) const;
    Result<FileCounts, QString> countHere(const QByteArray &name, ProgressLine &progress);
    Result<QBYWordCounterStats, QString> countInService(const QByteArray &name, ProgressLine &progress);
    Result<QBYWordCounterStats, QString> countTextInService(
        const Result<AttributedString, DocumentError> &text, ProgressLine &progress);
    void fail(const QByteArray &name, const QString &cause);

    const CountArguments m_arguments;
    CountingRules m_rules; ///< of all files of the run
    FurtherRules m_further;
    CountColumns m_columns;
    QSet<QByteArray> m_filesOfFolders; ///< nobody has named them, so what is no text there is left out
    bool m_isGoalReached = true;
    WordCounterModel m_model{[this] { return m_rules; }};
    TextCounter m_textCounter; ///< of the words by other rules
    std::optional<ServiceCounter> m_service; ///< created when first needed
    std::mutex m_largeDocument;
    bool m_mayUseThreads = false; ///< for parts of a long text
    bool m_hasFailed = false;
};

int CountCommand::run()
{
    runFirstLaunchStep();
    // The service has its own, unless they are to be explained.
    if (!m_arguments.wantsService || m_arguments.wantsRules)
        m_rules = currentCountingRules();
    chooseColumns();
    if (m_rules.text.localeIdentifier)
        m_rules.text.fixLocale();
    const QByteArrayList names = inputNames();
    if (m_arguments.wantsRules)
        explainRules(names);
    else
        countAll(names);
    if (std::fflush(stdout) != 0)
        fail(CommandText::tr("standard output").toUtf8(), translatedSystemError(errno));
    if (m_hasFailed)
        return 1;
    return m_isGoalReached ? 0 : missedGoalStatus;
}

void CountCommand::chooseColumns()
{
    m_further = currentFurtherRules();
    if (m_arguments.also)
        m_further.shown = *m_arguments.also;
    if (m_arguments.wantsService)
        std::erase_if(m_further.shown, needsText);
    m_columns = m_arguments.columns.value_or(columnsFor(m_further));
    // What is sorted by must be counted, shown or not.
    CountColumns counted = m_columns;
    if (m_arguments.sortKey && m_arguments.sortKey->column)
        counted.push_back(*m_arguments.sortKey->column);
    m_further.shown.clear();
    for (const CountColumn &column : counted) {
        if (const auto *const further = std::get_if<FurtherStatistic>(&column))
            m_further.shown.push_back(*further);
    }
}

void CountCommand::countAll(const QByteArrayList &names)
{
    const qint64 size = sizeOfAll(names);
    const std::unique_ptr<CountReport> report =
        CountReport::make(m_arguments.format, size, m_columns, m_further);
    const int threads = m_arguments.wantsService ? 1 : threadsFor(names, size);
    const std::unique_ptr<ParallelCount> parallel = threads > 1 ? countInParallel(names, threads) : nullptr;
    m_mayUseThreads = !parallel;
    FileCounts total;
    std::vector<CountedFile> files; // only to be sorted
    bool hasRows = false;
    ProgressLine progress(names.size());
    for (qsizetype i = 0; i < names.size(); ++i) {
        progress.startReading(names[i], i);
        const std::optional<FileCounts> counts =
            parallel ? take(names[i], parallel->next(progress), progress) : count(names[i], progress);
        if (!counts)
            continue;
        if (!std::exchange(hasRows, true))
            print(report->header());
        if (m_arguments.sortKey)
            files.push_back({names[i], *counts});
        else
            print(report->row(names[i], *counts));
        total += *counts;
    }
    progress.hide();
    sort(files);
    for (const CountedFile &file : files)
        print(report->row(file.name, file.counts));
    if ((names.size() > 1 || m_arguments.isRecursive) && hasRows)
        print(report->total(total));
    if (m_arguments.goal)
        compareWithGoal(total.stats);
}

void CountCommand::sort(std::vector<CountedFile> &files) const
{
    if (!m_arguments.sortKey)
        return;
    const std::optional<CountColumn> &column = m_arguments.sortKey->column;
    std::stable_sort(files.begin(), files.end(), [&](const CountedFile &one, const CountedFile &other) {
        return column ? valueOf(*column, one.counts, m_further) > valueOf(*column, other.counts, m_further)
                      : one.name < other.name;
    });
}

void CountCommand::compareWithGoal(const QBYWordCounterStats &total)
{
    const CountGoal &goal = *m_arguments.goal;
    const quint64 count = total.*statisticTable.at(static_cast<std::size_t>(goal.statistic)).count;
    m_isGoalReached = count >= goal.count;
    if (m_arguments.format != CountFormat::Table)
        return;
    const quint64 difference = m_isGoalReached ? count - goal.count : goal.count - count;
    const QString text = m_isGoalReached ? CommandText::tr("%1: goal %2, reached with %3 more")
                                         : CommandText::tr("%1: goal %2, %3 to go");
    print((text.arg(titleOf(goal.statistic)).arg(goal.count).arg(difference) + u'\n').toUtf8());
}

// Counts first: the fonts in use are known only after the texts have been laid out.
void CountCommand::explainRules(const QByteArrayList &names)
{
    ProgressLine progress(names.size());
    for (qsizetype i = 0; i < names.size(); ++i) {
        progress.startReading(names[i], i);
        count(names[i], progress);
    }
    if (names.isEmpty())
        m_model.setAttributedStringToCount(AttributedString(QStringLiteral("a")));
    progress.hide();
    const QByteArrayList fontFiles = MeasuringSurface::shared().engine().fontFilesInUse();
    print(m_arguments.format == CountFormat::Json ? jsonOfRules(m_rules, m_further, fontFiles)
                                                  : explanationOfRules(m_rules, m_further, fontFiles));
}

QByteArrayList CountCommand::inputNames()
{
    const QByteArrayList names = m_arguments.fileNames;
    if (!m_arguments.listName)
        return withoutFolders(names);
    const Result<QByteArray, FileError> list = readNamed(*m_arguments.listName);
    if (!list) {
        fail(*m_arguments.listName, causeText(list.error()));
        return withoutFolders(names);
    }
    return withoutFolders(names + namesInList(list.value()));
}

QByteArrayList CountCommand::withoutFolders(const QByteArrayList &names)
{
    if (!m_arguments.isRecursive)
        return names;
    FolderWalk walk(m_arguments.globs,
        [this](const QByteArray &path, int error) { fail(path, translatedSystemError(error)); });
    QByteArrayList files;
    for (const QByteArray &name : names) {
        struct stat status { };
        if (::stat(name.constData(), &status) != 0 || !S_ISDIR(status.st_mode) || isRtfdPackage(name)) {
            files.append(name);
            continue;
        }
        for (const QByteArray &file : walk.filesBelow(name)) {
            files.append(file);
            m_filesOfFolders.insert(file);
        }
    }
    return files;
}

std::optional<FileCounts> CountCommand::count(const QByteArray &name, ProgressLine &progress)
{
    Result<FileCounts, QString> stats = causeText(FileError{FileError::Cause::NotEnoughMemory});
    // Every step allocates buffers as large as the document.
    try {
        stats = m_arguments.wantsService ? withoutFurther(countInService(name, progress))
                                         : countHere(name, progress);
    } catch (const std::bad_alloc &) {
    }
    return take(name, stats, progress);
}

std::optional<FileCounts> CountCommand::take(
    const QByteArray &name, const Result<FileCounts, QString> &stats, ProgressLine &progress)
{
    progress.hide();
    if (stats)
        return stats.value();
    if (!stats.error().isEmpty())
        fail(name, stats.error());
    return std::nullopt;
}

std::unique_ptr<ParallelCount> CountCommand::countInParallel(const QByteArrayList &names, int threads)
{
    const double columnWidth = MeasuringSurface::shared().columnWidthOn(m_rules.page);
    const auto makeCounter = [this, columnWidth]() -> ParallelCount::CountFile {
        const auto counter = std::make_shared<ColumnCounter>(m_rules.text, columnWidth);
        return [this, counter](const QByteArray &name, ParallelCount::Position &position) {
            // At most one large document is in memory.
            std::unique_lock large(m_largeDocument, std::defer_lock);
            if (sizeOf(name) > minLargeSize)
                large.lock();
            return countOnThread(name, *counter, position);
        };
    };
    return std::make_unique<ParallelCount>(names, threads, makeCounter);
}

QString CountCommand::failureOf(const QByteArray &name, const DocumentError &error) const
{
    using Cause = DocumentError::Cause;
    const bool isNoText = error.cause == Cause::NotText || error.cause == Cause::UnsupportedFormat;
    return isNoText && m_filesOfFolders.contains(name) ? QString() : causeText(error);
}

Result<FileCounts, QString> CountCommand::countOnThread(
    const QByteArray &name, ColumnCounter &counter, ParallelCount::Position &position) const
{
    try {
        const Result<AttributedString, DocumentError> text = loadNamedDocument(name, m_arguments.readAs);
        if (!text)
            return failureOf(name, text.error());
        position.length = text.value().length();
        return FileCounts{counter.count(text.value(), [&position](qsizetype at) { position.position = at; }),
            counter.countFurther(text.value(), m_further, columnHeightOf(m_rules.page))};
    } catch (const std::bad_alloc &) {
        return causeText(FileError{FileError::Cause::NotEnoughMemory});
    }
}

Result<FileCounts, QString> CountCommand::countHere(const QByteArray &name, ProgressLine &progress)
{
    const Result<AttributedString, DocumentError> text = loadNamedDocument(name, m_arguments.readAs);
    if (!text)
        return failureOf(name, text.error());
    progress.startCounting(text.value().length());
    m_model.setProgress([&progress](qsizetype position) { progress.setPosition(position); });
    if (m_mayUseThreads && text.value().length() >= PieceCounters::minLengthForThreads)
        m_model.startThreads(availableProcessors());
    m_model.setAttributedStringToCount(text.value());
    MeasuringSurface &surface = MeasuringSurface::shared();
    FileCounts counts{m_model.statsRepresentation(),
        furtherStatsOf(text.value(), m_further, surface.engine(), surface.columnWidthOn(m_rules.page),
            columnHeightOf(m_rules.page))};
    applyWordRules(m_arguments.wordRules, text.value().string(), m_rules.text, m_textCounter, counts.stats);
    return counts;
}

Result<QBYWordCounterStats, QString> CountCommand::countInService(
    const QByteArray &name, ProgressLine &progress)
{
    if (!m_service)
        m_service.emplace();
    if (!m_arguments.readAs.isItsKind() || (name != standardInputName && isRtfdPackage(name)))
        return countTextInService(loadNamedDocument(name, m_arguments.readAs), progress);
    const QByteArray path = name == standardInputName ? QByteArray() : name;
    const Result<QByteArray, FileError> contents = readNamed(name);
    if (!contents)
        return causeText(DocumentError(contents.error()));
    const Result<DocumentKind, DocumentError> kind = kindOfDocument(path, contents.value());
    if (!kind)
        return failureOf(name, kind.error());
    if (kind.value() == DocumentKind::Pdf) // read by a program of its own
        return countTextInService(readBytes(contents.value(), path, {.readsPdf = true}), progress);
    progress.startCounting(contents.value().size());
    return m_service->countDocument(kind.value(), contents.value());
}

Result<QBYWordCounterStats, QString> CountCommand::countTextInService(
    const Result<AttributedString, DocumentError> &text, ProgressLine &progress)
{
    if (!text)
        return causeText(text.error());
    progress.startCounting(text.value().length());
    return m_service->countText(text.value());
}

void CountCommand::fail(const QByteArray &name, const QString &cause)
{
    m_hasFailed = true;
    reportDocumentFailure(name, cause);
}

} // namespace

int runCountCommand(const CommandWords &words)
{
    const std::optional<CountArguments> arguments = CountArguments::fromWords(words);
    return arguments ? CountCommand(*arguments).run() : wrongUsageStatus;
}
