// SPDX-License-Identifier: MIT
#include "command/CountReport.h"

#include "command/FileNames.h"

#include <algorithm>
#include <array>

namespace {

struct Column {
    QByteArrayView key; ///< in JSON and TSV
    QByteArrayView title; ///< in the table
    quint64 QBYWordCounterStats::*count;
};

constexpr std::array columns{
    Column{"words", "Words", &QBYWordCounterStats::numberOfWords},
    Column{"characters", "Characters", &QBYWordCounterStats::numberOfCharacters},
    Column{"charactersIncludingWhitespace", "+Whitespace",
        &QBYWordCounterStats::numberOfCharactersIncludingWhitespace},
    Column{"sentences", "Sentences", &QBYWordCounterStats::numberOfSentences},
    Column{"lines", "Lines", &QBYWordCounterStats::numberOfLines},
    Column{"hardLineBreaks", "Hard breaks", &QBYWordCounterStats::numberOfHardLineBreaks},
    Column{"paragraphs", "Paragraphs", &QBYWordCounterStats::numberOfParagraphs},
    Column{"indentedParagraphs", "Indented", &QBYWordCounterStats::numberOfIndentedParagraphs},
};

class TableReport final : public CountReport {
public:
    explicit TableReport(qint64 expectedSize)
        : m_digits(QByteArray::number(expectedSize).size())
    {
    }

    [[nodiscard]] QByteArray header() const override
    {
        QByteArray line;
        for (const Column &column : columns)
            line += column.title.toByteArray().rightJustified(width(column)) + "  ";
        return line + "File\n";
    }

    [[nodiscard]] QByteArray row(const QByteArray &fileName, const QBYWordCounterStats &stats) const override
    {
        QByteArray line;
        for (const Column &column : columns)
            line += QByteArray::number(stats.*column.count).rightJustified(width(column)) + "  ";
        return line + printableName(fileName) + '\n';
    }

    [[nodiscard]] QByteArray total(const QBYWordCounterStats &stats) const override
    {
        return row("total", stats);
    }

private:
    [[nodiscard]] qsizetype width(const Column &column) const
    {
        return std::max(column.title.size(), m_digits);
    }

    qsizetype m_digits;
};

class JsonReport final : public CountReport {
public:
    [[nodiscard]] QByteArray row(const QByteArray &fileName, const QBYWordCounterStats &stats) const override
    {
        QByteArray line = "{\"file\":" + jsonName(fileName);
        for (const Column &column : columns)
            line += ",\"" + column.key.toByteArray() + "\":" + QByteArray::number(stats.*column.count);
        return line + "}\n";
    }
};

class TsvReport final : public CountReport {
public:
    [[nodiscard]] QByteArray header() const override
    {
        QByteArray line = "file";
        for (const Column &column : columns)
            line += '\t' + column.key.toByteArray();
        return line + '\n';
    }

    [[nodiscard]] QByteArray row(const QByteArray &fileName, const QBYWordCounterStats &stats) const override
    {
        QByteArray line = tsvName(fileName);
        for (const Column &column : columns)
            line += '\t' + QByteArray::number(stats.*column.count);
        return line + '\n';
    }
};

} // namespace

std::unique_ptr<CountReport> CountReport::make(CountForm form, qint64 expectedSize)
{
    switch (form) {
    case CountForm::Json:
        return std::make_unique<JsonReport>();
    case CountForm::Tsv:
        return std::make_unique<TsvReport>();
    case CountForm::Table:
        break;
    }
    return std::make_unique<TableReport>(expectedSize);
}
