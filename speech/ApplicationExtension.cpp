// SPDX-License-Identifier: MIT
#include "speech/ApplicationExtension.h"

#include "platform/locale/CurrentLocale.h"
#include "platform/locale/NumberText.h"
#include "platform/system/Processes.h"
#include "platform/views/Desktop.h"

#include <QCoreApplication>

QString QBYExtension::wordCountPhrase(quint64 wordCount)
{
    static const SpelledOutNumber speller(currentLocaleIdentifier());
    const QString number = speller.text(wordCount).value_or(QString::number(wordCount));
    return number
        + QCoreApplication::translate("speech", " words", "behind a number in letters, which is spoken");
}

bool QBYExtension::sayWordCountOutloud(quint64 wordCount, Desktop &desktop, const QString &launchPath)
{
    return wordCount > 0 && sayStringOutloud(wordCountPhrase(wordCount), desktop, launchPath);
}

bool QBYExtension::sayStringOutloud(
    const std::optional<QString> &string, Desktop &desktop, const QString &launchPath)
{
    if (!string)
        return false;
    const std::optional<LaunchError> error = launchDetached(launchPath, {*string});
    if (error)
        desktop.presentError(messageText(*error));
    return !error;
}
