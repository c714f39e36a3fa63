// SPDX-License-Identifier: MIT
// Each row of the tables in docs/counting.md is what Quillbay and the other programs count.
#include "platform/segmentation/GraphemeClusters.h"
#include "tests/command/CommandTest.h"
#include "tests/documents/LibreOffice.h"
#include "text_statistics/TextCounter.h"
#include "text_statistics/WordRules.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <map>

namespace {

using Row = std::map<QString, QString>; // by the title of the column; a repeated title has " 2" behind it

/// The first cell of a row without its marks, and with the characters that it stands for.
QString textOf(const QString &cell)
{
    QString text = cell.trimmed().sliced(1).chopped(1);
    text.replace(QStringLiteral("\\n"), QStringLiteral("\n"))
        .replace(QStringLiteral("\\t"), QStringLiteral("\t"));
    text.replace(QStringLiteral("\\r"), QStringLiteral("\r"));
    static const QRegularExpression code(QStringLiteral("\\\\u([0-9a-f]{4})"));
    for (QRegularExpressionMatch match; (match = code.match(text)).hasMatch();)
        text.replace(
            match.capturedStart(), match.capturedLength(), QChar(match.captured(1).toInt(nullptr, 16)));
    return text;
}

QStringList cellsOf(const QString &line)
{
    QStringList cells = line.split(u'|').sliced(1);
    cells.removeLast();
    for (QString &cell : cells)
        cell = cell.trimmed();
    return cells;
}

/// The rows of all tables below a heading that begin with this column.
std::vector<Row> tableBelow(const QString &heading, const QString &firstColumn)
{
    QFile page(QStringLiteral(QUILLBAY_SOURCE "/docs/counting.md"));
    EXPECT_TRUE(page.open(QIODevice::ReadOnly));
    std::vector<Row> rows;
    QStringList titles;
    QString section;
    for (const QString &line : QString::fromUtf8(page.readAll()).split(u'\n')) {
        if (line.startsWith(QStringLiteral("## ")))
            section = line.sliced(3);
        if (!line.startsWith(u'|')) {
            titles.clear();
        } else if (titles.isEmpty()) {
            for (const QString &title : cellsOf(line))
                titles.append(titles.contains(title) ? title + QStringLiteral(" 2") : title);
        } else if (!line.startsWith(QStringLiteral("|---")) && section == heading
            && titles[0] == firstColumn) {
            Row row;
            const QStringList cells = cellsOf(line);
            for (qsizetype i = 0; i < titles.size(); ++i)
                row[titles[i]] = cells.value(i);
            rows.push_back(row);
        }
    }
    EXPECT_FALSE(rows.empty()) << heading.toStdString();
    return rows;
}

class CountingTables : public CommandTest {
protected:
    CountingTables() { qputenv("LC_ALL", "en_US.UTF-8"); }

    QBYWordCounterStats counts(const QString &text, const WordRules &wordRules = {})
    {
        QBYWordCounterStats stats = m_counter.count(text, m_rules);
        applyWordRules(wordRules, text, m_rules, m_counter, stats);
        return stats;
    }

    /// What wc prints for the text.
    static quint64 wc(const char *option, const QString &text)
    {
        return ChildProcess(QStringLiteral("wc")).run({option}, text.toUtf8()).output.trimmed().toULongLong();
    }

    /// Whether wc knows more than the bytes of ASCII here.
    static bool isLocaleInstalled() { return wc("-m", QStringLiteral("\u00E9")) == 1; }

    const TextRules m_rules{.localeIdentifier = [] { return QStringLiteral("en_US"); },
        .minimumSentencesOfParagraph = 0,
        .sentencesNeedTerminalPunctuation = true};
    TextCounter m_counter;
};

#define EXPECT_CELL(row, title, count)                              \
    EXPECT_EQ((row).at(QStringLiteral(title)).toULongLong(), count) \
        << (row).begin()->second.toStdString() << " / " << (title) << ": " << text.toStdString()

} // namespace

TEST_F(CountingTables, Words)
{
    for (const Row &row : tableBelow(QStringLiteral("Words"), QStringLiteral("text"))) {
        const QString text = textOf(row.at(QStringLiteral("text")));
        EXPECT_CELL(row, "Quillbay", counts(text).numberOfWords);
        EXPECT_CELL(row, "LibreOffice", counts(text, WordRules::ofLibreOffice()).numberOfWords);
        EXPECT_CELL(row, "word processors", counts(text, WordRules::ofWordProcessors()).numberOfWords);
    }
}

TEST_F(CountingTables, OptionsForWords)
{
    for (const Row &row : tableBelow(QStringLiteral("Words"), QStringLiteral("option"))) {
        const QString text = textOf(row.at(QStringLiteral("text")));
        const QString options = textOf(row.at(QStringLiteral("option")));
        const auto words = [&text](const QByteArrayList &arguments) {
            const QByteArray output = count(QByteArrayList{"--json"} + arguments, text.toUtf8()).output;
            return static_cast<quint64>(QJsonDocument::fromJson(output).object()[u"words"].toInteger());
        };
        const QByteArrayList with = options.toUtf8().split(' ');
        EXPECT_CELL(row, "without", words(with.first(with.size() - 2)));
        EXPECT_CELL(row, "with", words(with));
    }
}

TEST_F(CountingTables, Characters)
{
    for (const Row &row : tableBelow(QStringLiteral("Characters"), QStringLiteral("text"))) {
        const QString text = textOf(row.at(QStringLiteral("text")));
        EXPECT_CELL(row, "Quillbay", counts(text).numberOfCharacters);
        EXPECT_CELL(row, "with white space", counts(text).numberOfCharactersIncludingWhitespace);
        EXPECT_CELL(row, "graphemes", numberOfGraphemeClusters(text));
        const QBYWordCounterStats office = counts(text, WordRules::ofLibreOffice());
        EXPECT_CELL(row, "LibreOffice", office.numberOfCharacters);
        EXPECT_CELL(row, "with white space 2", office.numberOfCharactersIncludingWhitespace);
    }
}

TEST_F(CountingTables, Sentences)
{
    for (const Row &row : tableBelow(QStringLiteral("Sentences"), QStringLiteral("text"))) {
        const QString text = textOf(row.at(QStringLiteral("text")));
        EXPECT_CELL(row, "Quillbay", counts(text).numberOfSentences);
    }
}

TEST_F(CountingTables, LinesAndParagraphs)
{
    for (const Row &row : tableBelow(QStringLiteral("Lines and paragraphs"), QStringLiteral("text"))) {
        const QString text = textOf(row.at(QStringLiteral("text")));
        EXPECT_CELL(row, "hard line breaks", counts(text).numberOfHardLineBreaks);
        EXPECT_CELL(row, "paragraphs", counts(text).numberOfParagraphs);
        EXPECT_CELL(row, "indented", counts(text).numberOfIndentedParagraphs);
        EXPECT_CELL(row, "`wc -l`", wc("-l", text));
    }
}

TEST_F(CountingTables, TheNumbersOfWcAreItsOwn)
{
    SKIP_WITHOUT_PACKAGE(isLocaleInstalled(), "locales, with en_US.UTF-8");
    for (const Row &row : tableBelow(QStringLiteral("Words"), QStringLiteral("text"))) {
        const QString text = textOf(row.at(QStringLiteral("text")));
        EXPECT_CELL(row, "`wc -w`", wc("-w", text));
    }
    for (const Row &row : tableBelow(QStringLiteral("Characters"), QStringLiteral("text"))) {
        const QString text = textOf(row.at(QStringLiteral("text")));
        EXPECT_CELL(row, "`wc -m`", wc("-m", text));
    }
}

TEST_F(CountingTables, TheNumbersOfLibreOfficeAreItsOwn)
{
    SKIP_WITHOUT_PACKAGE(LibreOffice::isInstalled(), "libreoffice-writer");
    QByteArray body;
    QBYWordCounterStats sum;
    for (const char *heading : {"Words", "Characters"}) {
        for (const Row &row : tableBelow(QString::fromLatin1(heading), QStringLiteral("text"))) {
            const QString text = textOf(row.at(QStringLiteral("text")));
            sum += counts(text, WordRules::ofLibreOffice());
            body += "<text:p>"
                + text.toHtmlEscaped()
                      .replace(u'\t', QStringLiteral("<text:tab/>"))
                      .replace(u'\n', QStringLiteral("</text:p><text:p>"))
                      .toUtf8()
                + "</text:p>";
        }
    }
    const QByteArray made = LibreOffice::convert({.body = body}, QStringLiteral("xml"), world().root());
    const auto figure = [&made](const char *name) {
        const QRegularExpression attribute(
            QStringLiteral("meta:%1=\"(\\d+)\"").arg(QString::fromLatin1(name)));
        return attribute.match(QString::fromUtf8(made)).captured(1).toULongLong();
    };
    EXPECT_EQ(figure("word-count"), sum.numberOfWords);
    EXPECT_EQ(figure("character-count"), sum.numberOfCharactersIncludingWhitespace);
    EXPECT_EQ(figure("non-whitespace-character-count"), sum.numberOfCharacters);
    EXPECT_EQ(figure("paragraph-count"), sum.numberOfParagraphs);
}
