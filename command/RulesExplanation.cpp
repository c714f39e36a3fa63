// SPDX-License-Identifier: MIT
#include "command/RulesExplanation.h"

#include "command/FileNames.h"

namespace {

QByteArray points(double length)
{
    return QByteArray::number(length, 'g', 6) + " points";
}

QByteArray line(const char *name, const QByteArray &value)
{
    return QByteArray(name).leftJustified(38) + value + '\n';
}

} // namespace

QByteArray rulesExplanation(const CountingRules &rules, const QByteArrayList &fontFiles)
{
    const PageRules &page = rules.page;
    const double columnWidth = page.paperSize.width() - page.leftMargin - page.rightMargin;
    QByteArray text = line("Locale", printableName(rules.text.localeIdentifier().toUtf8()))
        + line("Sentences end in punctuation", rules.text.sentencesNeedTerminalPunctuation ? "yes" : "no")
        + line(
            "Sentences of a paragraph, at least", QByteArray::number(rules.text.minimumSentencesOfParagraph))
        + line("Paper", page.paperName ? printableName(page.paperName->toUtf8()) : "of the print settings")
        + line("Paper width", points(page.paperSize.width()))
        + line("Paper height", points(page.paperSize.height())) + line("Left margin", points(page.leftMargin))
        + line("Right margin", points(page.rightMargin))
        + line("Column", columnWidth > 0 ? points(columnWidth) : "none: the margins leave no width")
        + line("Pixels per point", QByteArray::number(page.scale));
    for (const QByteArray &file : fontFiles)
        text += line("Font", printableName(file));
    return fontFiles.isEmpty() ? text + line("Font", "none: lines are measured by a fixed width") : text;
}
