// SPDX-License-Identifier: MIT
#include "command/CountReport.h"

#include "command/FileNames.h"

#include <algorithm>
#include <array>
#include <optional>
#include <vector>

namespace {

/// Of the table's columns, by Statistic.
constexpr std::array<const char *, statisticCount> titles{
    "Words", "Characters", "+Whitespace", "Sentences", "Lines", "Hard breaks", "Paragraphs", "Indented"};

class TableReport final : public CountReport {
public:
    explicit TableReport(qint64 expectedSize)
        : m_digits(QByteArray::number(expectedSize).size())
    {
    }

    [[nodiscard]] QByteArray header() const override
    {
        QByteArray line;
        for (const StatisticRow &row : statisticTable)
            line += titleOf(row.statistic).rightJustified(widthOf(row)) + "  ";
        return line + "File\n";
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
        return row("total", stats);
    }

private:
    [[nodiscard]] qsizetype widthOf(const StatisticRow &row) const
    {
        return std::max(titleOf(row.statistic).size(), m_digits);
    }

    qsizetype m_digits;
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
    QByteArray title;
    QByteArray text;
    QByteArray name;
    QByteArray json;
};

RuleRow numberRow(const char *title, double number, const char *unit, const char *name)
{
    const QByteArray digits = QByteArray::number(number, 'g', 6);
    return {title, digits + unit, name, digits};
}

RuleRow lengthRow(const char *title, double length, const char *name)
{
    return numberRow(title, length, " points", name);
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
    return {
        {"Locale", printableName(locale), "locale", jsonName(locale)},
        {"Sentences end in punctuation", needsPunctuation ? "yes" : "no", "terminalPunctuation",
            needsPunctuation ? "true" : "false"},
        numberRow("Sentences of a paragraph, at least", minimumSentences, "", "minimumSentences"),
        {"Paper", paper ? printableName(*paper) : "of the print settings", "paper",
            paper ? jsonName(*paper) : "null"},
        lengthRow("Paper width", page.paperSize.width(), "paperWidth"),
        lengthRow("Paper height", page.paperSize.height(), "paperHeight"),
        lengthRow("Left margin", page.leftMargin, "leftMargin"),
        lengthRow("Right margin", page.rightMargin, "rightMargin"),
        columnWidth ? lengthRow("Column", *columnWidth, "column")
                    : RuleRow{"Column", "none: the margins leave no width", "column", "null"},
        numberRow("Pixels per point", page.scale, "", "pixelsPerPoint"),
    };
}

QByteArray ruleLine(const QByteArray &title, const QByteArray &text)
{
    return title.leftJustified(38) + text + '\n';
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

QByteArray titleOf(Statistic statistic)
{
    return titles.at(static_cast<std::size_t>(statistic));
}

QByteArray explanationOfRules(const CountingRules &rules, const QByteArrayList &fontFiles)
{
    QByteArray text;
    for (const RuleRow &row : rulesAsRows(rules))
        text += ruleLine(row.title, row.text);
    for (const QByteArray &file : fontFiles)
        text += ruleLine("Font", printableName(file));
    if (fontFiles.isEmpty())
        text += ruleLine("Font", "none: lines are measured with a fixed character width");
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
