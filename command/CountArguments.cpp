// SPDX-License-Identifier: MIT
#include "command/CountArguments.h"

#include "command/FileNames.h"
#include "platform/system/Result.h"

#include <QStringList>

#include <algorithm>
#include <initializer_list>

namespace {

QString allFurtherNames()
{
    QStringList names;
    for (const FurtherStatisticRow &row : furtherStatisticTable)
        names.append(QLatin1StringView(row.typedName.data(), static_cast<qsizetype>(row.typedName.size())));
    return names.join(u',');
}

/// Wrong combinations, with their message; empty if all is right.
QString wrongCombinationIn(const CommandWords &words)
{
    if (words.switches.contains("json") && words.switches.contains("tsv"))
        return CommandText::tr("--json and --tsv cannot be combined");
    if (words.switches.count("files-from") > 1)
        return CommandText::tr("--files-from can be given only once");
    if (words.switches.contains("service") && words.switches.contains("explain-rules"))
        return CommandText::tr("--service and --explain-rules cannot be combined");
    if (words.switches.contains("tsv") && words.switches.contains("explain-rules"))
        return CommandText::tr("--explain-rules prints a table or, with --json, an object; leave out --tsv");
    if (words.valueOf("files-from") == "-" && words.operands.contains("-"))
        return CommandText::tr("standard input cannot be both a document and the list of files");
    return {};
}

using FurtherList = std::vector<FurtherStatistic>;

/// The error is a message.
Result<FurtherList, QString> furtherListOf(const QByteArray &names, bool isInService)
{
    FurtherList list;
    if (names == "none")
        return list;
    for (const QByteArray &name : names.split(',')) {
        const std::optional<FurtherStatistic> statistic =
            furtherStatisticNamed({name.constData(), static_cast<std::size_t>(name.size())});
        if (!statistic)
            return CommandText::tr("--also knows no '%1'; use none, or some of %2")
                .arg(QString::fromUtf8(printableName(name)), allFurtherNames());
        if (isInService && needsText(*statistic))
            return CommandText::tr("--service does not count %1; leave out one of them")
                .arg(QString::fromUtf8(name));
        if (std::find(list.begin(), list.end(), *statistic) == list.end())
            list.push_back(*statistic);
    }
    return list;
}

template <typename Value>
struct Choice {
    const char *name;
    Value value;
};

/// Sets the value of an option that takes one of some words. The message for another word; empty if all is
/// right.
template <typename Value>
QString choose(
    const CommandWords &words, const char *option, std::initializer_list<Choice<Value>> choices, Value &value)
{
    const std::optional<QByteArray> given = words.valueOf(option);
    if (!given)
        return {};
    QStringList names;
    for (const Choice<Value> &choice : choices) {
        if (*given == choice.name) {
            value = choice.value;
            return {};
        }
        names.append(QLatin1StringView(choice.name));
    }
    return CommandText::tr("--%1 knows no '%2'; use one of %3")
        .arg(QLatin1StringView(option), QString::fromUtf8(printableName(*given)),
            names.join(QStringLiteral(", ")));
}

/// The error is a message.
Result<WordRules, QString> wordRulesOf(const CommandWords &words)
{
    WordRules rules;
    QString wrong = choose<WordRules>(words, "count-as",
        {{"quillbay", {}}, {"libreoffice", WordRules::ofLibreOffice()},
            {"word-processor", WordRules::ofWordProcessors()}},
        rules);
    using Hyphenated = WordRules::Hyphenated;
    if (wrong.isEmpty())
        wrong = choose<Hyphenated>(words, "hyphenated",
            {{"one", Hyphenated::One}, {"several", Hyphenated::Several}}, rules.hyphenated);
    using Urls = WordRules::Urls;
    if (wrong.isEmpty())
        wrong = choose<Urls>(words, "urls", {{"one", Urls::One}, {"none", Urls::None}}, rules.urls);
    if (!wrong.isEmpty())
        return wrong;
    if (const std::optional<QByteArray> separators = words.valueOf("separators"))
        rules.separators = QString::fromLocal8Bit(*separators);
    if (words.switches.contains("service") && !(rules == WordRules()))
        return CommandText::tr("--service counts words by Quillbay's own rules; leave out the other rules");
    return rules;
}

CountFormat formatOf(const CommandWords &words)
{
    if (words.switches.contains("json"))
        return CountFormat::Json;
    return words.switches.contains("tsv") ? CountFormat::Tsv : CountFormat::Table;
}

} // namespace

std::optional<CountArguments> CountArguments::fromWords(const CommandWords &words)
{
    if (const QString misuse = wrongCombinationIn(words); !misuse.isEmpty()) {
        reportWrongUsage("count", misuse);
        return std::nullopt;
    }
    CountArguments arguments{.format = formatOf(words),
        .wantsRules = words.switches.contains("explain-rules"),
        .readAs = ReadAs::fromWords(words),
        .wantsService = words.switches.contains("service"),
        .also = std::nullopt,
        .wordRules = {},
        .listName = words.valueOf("files-from"),
        .fileNames = words.operands};
    if (const std::optional<QByteArray> names = words.valueOf("also")) {
        const Result<FurtherList, QString> also = furtherListOf(*names, arguments.wantsService);
        if (!also) {
            reportWrongUsage("count", also.error());
            return std::nullopt;
        }
        arguments.also = also.value();
    }
    const Result<WordRules, QString> wordRules = wordRulesOf(words);
    if (!wordRules) {
        reportWrongUsage("count", wordRules.error());
        return std::nullopt;
    }
    arguments.wordRules = wordRules.value();
    if (!arguments.listName && arguments.fileNames.isEmpty() && !arguments.wantsRules)
        arguments.fileNames.append("-");
    return arguments;
}
