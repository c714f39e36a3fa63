// SPDX-License-Identifier: MIT
#include "command/CountReport.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

/// Of the table's columns, by Statistic.
constexpr std::array<const char *, statisticCount> titles{QT_TRANSLATE_NOOP("command", "Words"),
    QT_TRANSLATE_NOOP("command", "Characters"), QT_TRANSLATE_NOOP("command", "+Whitespace"),
    QT_TRANSLATE_NOOP("command", "Sentences"), QT_TRANSLATE_NOOP("command", "Lines"),
    QT_TRANSLATE_NOOP("command", "Hard breaks"), QT_TRANSLATE_NOOP("command", "Paragraphs"),
    QT_TRANSLATE_NOOP("command", "Indented")};

class TableReport final : public CountReport {
public:
    explicit TableReport(qint64 expectedSize)
        : m_digits(QByteArray::number(expectedSize).size())
    {
        for (const StatisticRow &row : statisticTable)
            m_titles.append(titleOf(row.statistic));
    }

    [[nodiscard]] QByteArray header() const override
    {
        QString line;
        for (const StatisticRow &row : statisticTable)
            line += titleIn(row).rightJustified(widthOf(row)) + QStringLiteral("  ");
        return (line + CommandText::tr("File") + u'\n').toUtf8();
    }

    [[nodiscard]] QByteArray row(const QByteArray &fileName, const QBYWordCounterStats &stats) const override
    {
        QByteArray line;
        for (const StatisticRow &row : statisticTable)
            line += QByteArray::number(stats.*row.count).rightJustified(widthOf(row)) + "  ";
        return line + printableName(fileName) + '\n';
    }

    [[nodiscard]] QByteArray total(const QBYWordCounterStats &stats) const override
    {
        return row(CommandText::tr("total").toUtf8(), stats);
    }

private:
    [[nodiscard]] qsizetype widthOf(const StatisticRow &row) const
    {
        return std::max(titleIn(row).size(), m_digits);
    }
    [[nodiscard]] const QString &titleIn(const StatisticRow &row) const
    {
        return m_titles.at(static_cast<qsizetype>(row.statistic));
    }

    qsizetype m_digits;
    QStringList m_titles; ///< by Statistic
};

class JsonReport final : public CountReport {
public:
    [[nodiscard]] QByteArray row(const QByteArray &fileName, const QBYWordCounterStats &stats) const override
    {
        QByteArray line = '{' + jsonFileMembers(fileName);
        for (const StatisticRow &row : statisticTable)
            line += QByteArray(",\"") + row.name + "\":" + QByteArray::number(stats.*row.count);
        return line + "}\n";
    }
};

class TsvReport final : public CountReport {
public:
    [[nodiscard]] QByteArray header() const override
    {
        QByteArray line = "file";
        for (const StatisticRow &row : statisticTable)
            line += QByteArray("\t") + row.name;
        return line + '\n';
    }

    [[nodiscard]] QByteArray row(const QByteArray &fileName, const QBYWordCounterStats &stats) const override
    {
        QByteArray line = tsvName(fileName);
        for (const StatisticRow &row : statisticTable)
            line += '\t' + QByteArray::number(stats.*row.count);
        return line + '\n';
    }
};

/// A line of the explanation, and its member in JSON.
struct RuleRow {
    QString title;
    QString text;
    QByteArray name;
    QByteArray json;
};

RuleRow numberRow(const QString &title, double number, const QByteArray &name)
{
    const QByteArray digits = QByteArray::number(number, 'g', 6);
    return {title, QString::fromLatin1(digits), name, digits};
}

RuleRow lengthRow(const QString &title, double length, const QByteArray &name)
{
    RuleRow row = numberRow(title, length, name);
    row.text = CommandText::tr("%1 points").arg(row.text);
    return row;
}

QString printableText(const QByteArray &text)
{
    return QString::fromUtf8(printableName(text));
}

std::vector<RuleRow> rulesAsRows(const CountingRules &rules)
{
    const PageRules &page = rules.page;
    const QByteArray locale = rules.text.localeIdentifier().toUtf8();
    const bool needsPunctuation = rules.text.sentencesNeedTerminalPunctuation;
    const auto minimumSentences = static_cast<double>(rules.text.minimumSentencesOfParagraph);
    const std::optional<QByteArray> paper =
        page.paperName ? std::optional(page.paperName->toUtf8()) : std::nullopt;
    const std::optional<double> columnWidth = columnWidthOf(page);
    const QString column = CommandText::tr("Column");
    return {
        {CommandText::tr("Locale"), printableText(locale), "locale", jsonName(locale)},
        {CommandText::tr("Sentences end in punctuation"),
            needsPunctuation ? CommandText::tr("yes") : CommandText::tr("no"), "terminalPunctuation",
            needsPunctuation ? "true" : "false"},
        numberRow(
            CommandText::tr("Sentences of a paragraph, at least"), minimumSentences, "minimumSentences"),
        {CommandText::tr("Paper"), paper ? printableText(*paper) : CommandText::tr("of the print settings"),
            "paper", paper ? jsonName(*paper) : "null"},
        lengthRow(CommandText::tr("Paper width"), page.paperSize.width(), "paperWidth"),
        lengthRow(CommandText::tr("Paper height"), page.paperSize.height(), "paperHeight"),
        lengthRow(CommandText::tr("Left margin"), page.leftMargin, "leftMargin"),
        lengthRow(CommandText::tr("Right margin"), page.rightMargin, "rightMargin"),
        columnWidth ? lengthRow(column, *columnWidth, "column")
                    : RuleRow{column, CommandText::tr("none: the margins leave no width"), "column", "null"},
        numberRow(CommandText::tr("Pixels per point"), page.scale, "pixelsPerPoint"),
    };
}

QByteArray ruleLine(const QString &title, const QString &text)
{
    return (title.leftJustified(38) + text + u'\n').toUtf8();
}

} // namespace

std::unique_ptr<CountReport> CountReport::make(CountFormat format, qint64 expectedSize)
{
    switch (format) {
    case CountFormat::Json:
        return std::make_unique<JsonReport>();
    case CountFormat::Tsv:
        return std::make_unique<TsvReport>();
    case CountFormat::Table:
        break;
    }
    return std::make_unique<TableReport>(expectedSize);
}

QString titleOf(Statistic statistic)
{
    return CommandText::tr(titles.at(static_cast<std::size_t>(statistic)));
}

QByteArray explanationOfRules(const CountingRules &rules, const QByteArrayList &fontFiles)
{
    QByteArray text;
    for (const RuleRow &row : rulesAsRows(rules))
        text += ruleLine(row.title, row.text);
    for (const QByteArray &file : fontFiles)
        text += ruleLine(CommandText::tr("Font"), printableText(file));
    if (fontFiles.isEmpty())
        text += ruleLine(CommandText::tr("Font"),
            CommandText::tr("none: lines are measured with a fixed character width"));
    return text;
}

QByteArray jsonOfRules(const CountingRules &rules, const QByteArrayList &fontFiles)
{
    QByteArray json;
    for (const RuleRow &row : rulesAsRows(rules))
        json += (json.isEmpty() ? "{\"" : ",\"") + row.name + "\":" + row.json;
    QByteArrayList fonts;
    for (const QByteArray &file : fontFiles)
        fonts.append(jsonName(file));
    return json + ",\"fonts\":[" + fonts.join(',') + "]}\n";
}
