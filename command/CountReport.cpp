// SPDX-License-Identifier: MIT
#include "command/CountReport.h"

#include "command/FileNames.h"

#include <algorithm>
#include <array>

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
        QByteArray line = "{\"file\":" + jsonName(fileName);
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

QByteArray inPoints(double length)
{
    return QByteArray::number(length, 'g', 6) + " points";
}

QByteArray ruleLine(const char *name, const QByteArray &value)
{
    return QByteArray(name).leftJustified(38) + value + '\n';
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
    const PageRules &page = rules.page;
    const std::optional<double> columnWidth = columnWidthOf(page);
    QByteArray text = ruleLine("Locale", printableName(rules.text.localeIdentifier().toUtf8()))
        + ruleLine("Sentences end in punctuation", rules.text.sentencesNeedTerminalPunctuation ? "yes" : "no")
        + ruleLine(
            "Sentences of a paragraph, at least", QByteArray::number(rules.text.minimumSentencesOfParagraph))
        + ruleLine(
            "Paper", page.paperName ? printableName(page.paperName->toUtf8()) : "of the print settings")
        + ruleLine("Paper width", inPoints(page.paperSize.width()))
        + ruleLine("Paper height", inPoints(page.paperSize.height()))
        + ruleLine("Left margin", inPoints(page.leftMargin))
        + ruleLine("Right margin", inPoints(page.rightMargin))
        + ruleLine("Column", columnWidth ? inPoints(*columnWidth) : "none: the margins leave no width")
        + ruleLine("Pixels per point", QByteArray::number(page.scale));
    for (const QByteArray &file : fontFiles)
        text += ruleLine("Font", printableName(file));
    if (fontFiles.isEmpty())
        text += ruleLine("Font", "none: lines are measured with a fixed character width");
    return text;
}
