// SPDX-License-Identifier: MIT
#include "manual/ManualPage.h"

#include <QCoreApplication>

QByteArray ManualPage::typedName() const
{
    return command ? QByteArray(program) + ' ' + command : QByteArray(program);
}

QByteArray ManualPage::pageName() const
{
    return typedName().replace(' ', '-');
}

ManualOption helpOption()
{
    return {.name = "help", .letter = 'h', .text = QT_TRANSLATE_NOOP("Manual", "print this help and exit")};
}

ManualOption versionOption()
{
    return {
        .name = "version", .letter = 'V', .text = QT_TRANSLATE_NOOP("Manual", "print the version and exit")};
}

ManualOption markdownOption()
{
    return {.name = "markdown",
        .text = QT_TRANSLATE_NOOP("Manual",
            "read plain text as Markdown, without its marks, front matter, comments, code blocks and link "
            "targets")};
}

ManualOption latexOption()
{
    return {.name = "latex",
        .text = QT_TRANSLATE_NOOP("Manual",
            "read plain text as LaTeX, without its commands, formulas, comments, listings and references; "
            "with --markdown, only files named .tex, .ltx or .latex")};
}

const char *wrongUsageMeaning()
{
    return QT_TRANSLATE_NOOP("Manual", "the options or arguments were wrong");
}

QString translatedManualText(const char *text)
{
    return QCoreApplication::translate("Manual", text);
}
