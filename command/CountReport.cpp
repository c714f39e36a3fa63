// SPDX-License-Identifier: MIT
#include "command/CountReport.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"

#include <algorithm>

namespace {

class TableReport final : public CountReport {
public:
    TableReport(qint64 expectedSize, CountColumns columns, FurtherRules rules)
        : CountReport(std::move(columns), std::move(rules))
        , m_digits(QByteArray::number(expectedSize).size())
    {
        for (const CountColumn column : this->columns())
            m_titles.append(titleOf(column));
    }

    [[nodiscard]] QByteArray header() const override
    {
        QString line;
        for (qsizetype i = 0; i < m_titles.size(); ++i)
            line += m_titles[i].rightJustified(widthOf(i)) + QStringLiteral("  ");
        return (line + CommandText::tr("File") + u'\n').toUtf8();
    }

    [[nodiscard]] QByteArray row(const QByteArray &fileName, const FileCounts &counts) const override
    {
        QByteArray line;
        for (qsizetype i = 0; i < m_titles.size(); ++i) {
            const CountColumn column = columns()[static_cast<std::size_t>(i)];
            line += tableText(column, counts, rules()).rightJustified(widthOf(i)) + "  ";
        }
        return line + printableName(fileName) + '\n';
    }

    [[nodiscard]] QByteArray total(const FileCounts &counts) const override
    {
        return row(CommandText::tr("total").toUtf8(), counts);
    }

private:
    [[nodiscard]] qsizetype widthOf(qsizetype column) const
    {
        return std::max(m_titles[column].size(), m_digits);
    }

    qsizetype m_digits;
    QStringList m_titles;
};

class JsonReport final : public CountReport {
public:
    using CountReport::CountReport;

    [[nodiscard]] QByteArray row(const QByteArray &fileName, const FileCounts &counts) const override
    {
        QByteArray line = '{' + jsonFileMembers(fileName);
        for (const CountColumn column : columns())
            line += QByteArray(",\"") + machineNameOf(column) + "\":" + machineText(column, counts, rules());
        return line + "}\n";
    }
};

class TsvReport final : public CountReport {
public:
    using CountReport::CountReport;

    [[nodiscard]] QByteArray header() const override
    {
        QByteArray line = "file";
        for (const CountColumn column : columns())
            line += QByteArray("\t") + machineNameOf(column);
        return line + '\n';
    }

    [[nodiscard]] QByteArray row(const QByteArray &fileName, const FileCounts &counts) const override
    {
        QByteArray line = tsvName(fileName);
        for (const CountColumn column : columns())
            line += '\t' + machineText(column, counts, rules());
        return line + '\n';
    }
};

} // namespace

std::unique_ptr<CountReport> CountReport::make(
    CountFormat format, qint64 expectedSize, CountColumns columns, FurtherRules rules)
{
    switch (format) {
    case CountFormat::Json:
        return std::make_unique<JsonReport>(std::move(columns), std::move(rules));
    case CountFormat::Tsv:
        return std::make_unique<TsvReport>(std::move(columns), std::move(rules));
    case CountFormat::Table:
        break;
    }
    return std::make_unique<TableReport>(expectedSize, std::move(columns), std::move(rules));
}
