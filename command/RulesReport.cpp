// SPDX-License-Identifier: MIT
#include "command/RulesReport.h"

#include "command/CommandWords.h"
#include "command/FileNames.h"

#include <optional>
#include <vector>

namespace {

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

std::vector<RuleRow> furtherRows(const PageRules &page, const FurtherRules &further)
{
    const QByteArray standardPage = further.standardPage.text().toUtf8();
    return {
        lengthRow(CommandText::tr("Top margin"), page.topMargin, "topMargin"),
        lengthRow(CommandText::tr("Bottom margin"), page.bottomMargin, "bottomMargin"),
        {CommandText::tr("Standard page"), QString::fromUtf8(standardPage), "standardPage",
            jsonName(standardPage)},
        numberRow(CommandText::tr("Words read per minute"), static_cast<double>(further.readingSpeed),
            "readingSpeed"),
        numberRow(CommandText::tr("Words spoken per minute"), static_cast<double>(further.speakingSpeed),
            "speakingSpeed"),
    };
}

std::vector<RuleRow> rulesAsRows(const CountingRules &rules, const FurtherRules &further)
{
    const PageRules &page = rules.page;
    const QByteArray locale = rules.text.localeIdentifier().toUtf8();
    const bool needsPunctuation = rules.text.sentencesNeedTerminalPunctuation;
    const auto minimumSentences = static_cast<double>(rules.text.minimumSentencesOfParagraph);
    const std::optional<QByteArray> paper =
        page.paperName ? std::optional(page.paperName->toUtf8()) : std::nullopt;
    const std::optional<double> columnWidth = columnWidthOf(page);
    const QString column = CommandText::tr("Column");
    std::vector<RuleRow> rows{
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
    if (further.shown.empty())
        return rows;
    const std::vector<RuleRow> others = furtherRows(page, further);
    rows.insert(rows.end(), others.begin(), others.end());
    return rows;
}

QByteArray ruleLine(const QString &title, const QString &text)
{
    return (title.leftJustified(38) + text + u'\n').toUtf8();
}

} // namespace

QByteArray explanationOfRules(
    const CountingRules &rules, const FurtherRules &further, const QByteArrayList &fontFiles)
{
    QByteArray text;
    for (const RuleRow &row : rulesAsRows(rules, further))
        text += ruleLine(row.title, row.text);
    for (const QByteArray &file : fontFiles)
        text += ruleLine(CommandText::tr("Font"), printableText(file));
    if (fontFiles.isEmpty())
        text += ruleLine(CommandText::tr("Font"),
            CommandText::tr("none: lines are measured with a fixed character width"));
    return text;
}

QByteArray jsonOfRules(
    const CountingRules &rules, const FurtherRules &further, const QByteArrayList &fontFiles)
{
    QByteArray json;
    for (const RuleRow &row : rulesAsRows(rules, further))
        json += (json.isEmpty() ? "{\"" : ",\"") + row.name + "\":" + row.json;
    QByteArrayList fonts;
    for (const QByteArray &file : fontFiles)
        fonts.append(jsonName(file));
    return json + ",\"fonts\":[" + fonts.join(',') + "]}\n";
}
