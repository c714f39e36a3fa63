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

const char *wrongUsageMeaning()
{
    return QT_TRANSLATE_NOOP("Manual", "the options or arguments were wrong");
}

QString translatedManualText(const char *text)
{
    return QCoreApplication::translate("Manual", text);
}
