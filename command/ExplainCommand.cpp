// SPDX-License-Identifier: MIT
// "quillbay explain": prints what the counts of documents consist of, and what does not count and why.
#include "command/CommandWords.h"
#include "command/Commands.h"
#include "command/CountReport.h"
#include "command/FileNames.h"
#include "command/FirstLaunchStep.h"
#include "command/ItemTally.h"
#include "command/MarkedText.h"
#include "command/NamedDocument.h"
#include "command/ProgressLine.h"
#include "platform/segmentation/GraphemeClusters.h"
#include "platform/system/StandardOutput.h"
#include "platform/system/SystemError.h"
#include "text_statistics/ColumnCounter.h"
#include "text_statistics/MeasuringSurface.h"

#include <cerrno>
#include <cstdio>
#include <new>
#include <optional>
#include <vector>

namespace {

struct ExplainOptions {
    std::vector<Statistic> statistics; ///< all, unless some are named
    bool areNamed = false;
    bool wantsJson = false;
    bool wantsOnlyNotCounted = false;
    ReadAs readAs;

    [[nodiscard]] bool isOverview() const { return !areNamed && !wantsOnlyNotCounted; }
};

/// At most so many code units of an item are printed in JSON.
constexpr qsizetype maxJsonExcerptLength = 200;

QByteArray jsonOf(const QByteArray &fileMembers, QStringView text, const CountedItem &item)
{
    const QStringView excerpt = firstUnits(text.sliced(item.start, item.length), maxJsonExcerptLength);
    return '{' + fileMembers + ",\"kind\":\""
        + statisticTable.at(static_cast<std::size_t>(item.statistic)).name
        + "\",\"offset\":" + QByteArray::number(item.start) + ",\"length\":" + QByteArray::number(item.length)
        + ",\"counted\":" + (item.isCounted() ? "true" : "false") + ",\"reason\":\""
        + identifierOf(item.reason) + "\",\"text\":" + jsonName(excerpt.toUtf8()) + "}\n";
}

class ExplainCommand {
public:
    explicit ExplainCommand(ExplainOptions wanted)
        : m_options(std::move(wanted))
    {
    }

    /// The exit status.
    int run(const QByteArrayList &names);

private:
    void explain(const QByteArray &name, qsizetype index, qsizetype count);
    [[nodiscard]] QByteArray overviewOf(const AttributedString &text, ProgressLine &progress);
    void printItems(const AttributedString &text, Statistic statistic);
    void printJson(const QByteArray &name, const AttributedString &text);
    void fail(const QByteArray &name, const QString &cause);

    const ExplainOptions m_options;
    std::optional<ColumnCounter> m_counter;
    bool m_hasFailed = false;
};

int ExplainCommand::run(const QByteArrayList &names)
{
    runFirstLaunchStep();
    CountingRules rules = currentCountingRules();
    rules.text.fixLocale();
    m_counter.emplace(rules.text, MeasuringSurface::shared().columnWidthOn(rules.page));
    for (qsizetype i = 0; i < names.size(); ++i) {
        // Every step allocates buffers as large as the document.
        try {
            explain(names[i], i, names.size());
        } catch (const std::bad_alloc &) {
            fail(names[i], causeText(FileError{FileError::Cause::NotEnoughMemory}));
        }
    }
    if (std::fflush(stdout) != 0)
        fail(CommandText::tr("standard output").toUtf8(), translatedSystemError(errno));
    return m_hasFailed ? 1 : 0;
}

void ExplainCommand::explain(const QByteArray &name, qsizetype index, qsizetype count)
{
    std::optional<ProgressLine> progress(std::in_place, count);
    progress->startReading(name, index);
    const Result<AttributedString, DocumentError> document = loadNamedDocument(name, m_options.readAs);
    if (!document) {
        progress.reset();
        fail(name, causeText(document.error()));
        return;
    }
    const AttributedString &text = document.value();
    if (m_options.wantsJson) {
        progress.reset(); // the items show the progress
        printJson(name, text);
        return;
    }
    const QByteArray title = (index > 0 ? "\n" : "") + printableName(name) + '\n';
    if (m_options.isOverview()) {
        progress->startCounting(text.length());
        const QByteArray overview = overviewOf(text, *progress);
        progress.reset();
        print(title + overview);
        return;
    }
    progress.reset();
    print(title);
    for (const Statistic statistic : m_options.statistics)
        printItems(text, statistic);
}

QByteArray ExplainCommand::overviewOf(const AttributedString &text, ProgressLine &progress)
{
    QByteArray overview;
    for (const StatisticRow &row : statisticTable) {
        ItemTally tally;
        const auto addPart = [&](qsizetype position) {
            const auto pass = static_cast<qsizetype>(row.statistic);
            progress.setPosition((pass * text.length() + position) / qsizetype{statisticCount});
        };
        const quint64 count = m_counter->forEachItem(
            text, row.statistic, [&](const CountedItem &item) { tally.add(item); }, addPart);
        overview += tally.summary(row.statistic, count, m_counter->rules());
    }
    return overview;
}

void ExplainCommand::printItems(const AttributedString &text, Statistic statistic)
{
    ItemTally tally;
    MarkedText marked(text.string(), m_counter->rules());
    const quint64 count = m_counter->forEachItem(text, statistic, [&](const CountedItem &item) {
        tally.add(item);
        if (!m_options.wantsOnlyNotCounted)
            marked.add(item);
        else if (!item.isCounted())
            marked.addAlone(item);
    });
    if (!m_options.wantsOnlyNotCounted)
        marked.finish();
    print(tally.summary(statistic, count, m_counter->rules()));
}

void ExplainCommand::printJson(const QByteArray &name, const AttributedString &text)
{
    const QByteArray fileMembers = jsonFileMembers(name);
    for (const Statistic statistic : m_options.statistics) {
        m_counter->forEachItem(text, statistic, [&](const CountedItem &item) {
            if (!m_options.wantsOnlyNotCounted || !item.isCounted())
                print(jsonOf(fileMembers, text.string(), item));
        });
    }
    print(CountReport::make(CountFormat::Json, 0)->row(name, {m_counter->count(text), {}}));
}

void ExplainCommand::fail(const QByteArray &name, const QString &cause)
{
    m_hasFailed = true;
    reportDocumentFailure(name, cause);
}

ExplainOptions optionsOf(const CommandWords &words)
{
    ExplainOptions chosen{.statistics = {},
        .areNamed = false,
        .wantsJson = words.switches.contains("json"),
        .wantsOnlyNotCounted = words.switches.contains("not-counted"),
        .readAs = ReadAs::fromWords(words)};
    std::vector<Statistic> all;
    for (const StatisticRow &row : statisticTable) {
        all.push_back(row.statistic);
        const std::string_view name = typedNameOf(row.statistic);
        if (words.switches.contains(QByteArrayView(name.data(), static_cast<qsizetype>(name.size()))))
            chosen.statistics.push_back(row.statistic);
    }
    chosen.areNamed = !chosen.statistics.empty();
    if (!chosen.areNamed)
        chosen.statistics = std::move(all);
    return chosen;
}

} // namespace

int runExplainCommand(const CommandWords &words)
{
    ExplainCommand command(optionsOf(words));
    return command.run(words.operands.isEmpty() ? QByteArrayList{standardInputName} : words.operands);
}
