// SPDX-License-Identifier: MIT
#include "manual/HelpText.h"

#include "platform/system/StandardOutput.h"

#include <QStringList>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype lineWidth = 80;
constexpr qsizetype maxLabelWidth = 32; // of a longer one, the text begins on the next line

/// Where a line may end: at a space that is not within brackets.
QStringList unbreakablePieces(const QString &usage)
{
    QStringList pieces{QString()};
    int depth = 0;
    for (const QChar character : usage) {
        depth += (character == u'[') - (character == u']');
        if (character == u' ' && depth == 0)
            pieces.append(QString());
        else
            pieces.last() += character;
    }
    return pieces;
}

/// firstLine: what stands before the pieces; the other lines are indented as deep.
QString wrapped(const QString &firstLine, const QStringList &pieces)
{
    QString text;
    QString line = firstLine;
    bool isEmpty = true;
    for (const QString &piece : pieces) {
        if (!isEmpty && line.size() + 1 + piece.size() > lineWidth) {
            text += line + u'\n';
            line = QString(firstLine.size(), u' ');
            isEmpty = true;
        }
        line += (isEmpty ? QString() : QStringLiteral(" ")) + piece;
        isEmpty = false;
    }
    return text + line + u'\n';
}

QString paragraph(const char *text)
{
    return u'\n' + wrapped(QString(), translatedManualText(text).split(u' '));
}

QString usageLines(const ManualPage &page)
{
    QString lines;
    for (const char *const usage : page.usages) {
        const QString title = translatedManualText(QT_TRANSLATE_NOOP("Manual", "Usage:"));
        const QString start = (lines.isEmpty() ? title : QString(title.size(), u' ')) + u' '
            + QString::fromLatin1(page.typedName()) + QString(*usage ? 1 : 0, u' ');
        lines += wrapped(start, unbreakablePieces(QString::fromUtf8(usage)));
    }
    return lines;
}

using Row = std::pair<QString, const char *>;

/// Two columns.
QString list(const std::vector<Row> &rows)
{
    qsizetype width = 0;
    for (const auto &[label, text] : rows) {
        if (label.size() <= maxLabelWidth)
            width = std::max(width, label.size());
    }
    QString lines;
    for (const auto &[label, text] : rows) {
        QString start = QStringLiteral("  ") + label.leftJustified(width) + QStringLiteral("  ");
        if (label.size() > width) {
            lines += start.trimmed().prepend(QStringLiteral("  ")) + u'\n';
            start = QString(width + 4, u' ');
        }
        lines += wrapped(start, translatedManualText(text).split(u' '));
    }
    return lines;
}

QString titledList(const char *title, const std::vector<Row> &rows)
{
    return rows.empty() ? QString() : u'\n' + translatedManualText(title) + u'\n' + list(rows);
}

QString examples(const ManualPage &page)
{
    if (page.examples.empty())
        return {};
    QString lines = u'\n' + translatedManualText(QT_TRANSLATE_NOOP("Manual", "Examples:")) + u'\n';
    for (const ManualExample &example : page.examples) {
        lines += QStringLiteral("  ") + QString::fromUtf8(example.command) + u'\n';
        lines += wrapped(QString(6, u' '), translatedManualText(example.text).split(u' '));
    }
    return lines;
}

} // namespace

QString optionLabel(const ManualOption &option)
{
    QString label = QStringLiteral("--") + QLatin1StringView(option.name);
    if (option.placeholder)
        label += u' ' + QString::fromUtf8(option.placeholder);
    return option.letter ? u'-' + QString(QLatin1Char(option.letter)) + QStringLiteral(", ") + label : label;
}

QByteArray helpText(const ManualPage &page)
{
    QString help = usageLines(page);
    for (const char *const text : page.description)
        help += paragraph(text);
    std::vector<Row> rows;
    for (const ManualTerm &term : page.terms)
        rows.emplace_back(QString::fromUtf8(term.name), term.text);
    help += page.termsTitle ? titledList(page.termsTitle, rows) : QString();
    rows.clear();
    for (const ManualOption &option : page.options)
        rows.emplace_back(optionLabel(option), option.text);
    help += titledList(QT_TRANSLATE_NOOP("Manual", "Options:"), rows);
    for (const char *const text : page.notes)
        help += paragraph(text);
    help += examples(page);
    rows.clear();
    for (const ManualExitStatus &row : page.exitStatuses)
        rows.emplace_back(QString::number(row.status), row.text);
    help += titledList(QT_TRANSLATE_NOOP("Manual", "Exit status:"), rows);
    return help.toUtf8();
}

int printHelp(const ManualPage &page)
{
    return printText(helpText(page));
}
