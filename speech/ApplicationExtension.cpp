// SPDX-License-Identifier: MIT
#include "speech/ApplicationExtension.h"

#include "platform/locale/CurrentLocale.h"
#include "platform/locale/NumberText.h"
#include "platform/system/Processes.h"
#include "platform/views/Desktop.h"

bool QBYExtension::sayWordCountOutloud(quint64 wordCount, Desktop &desktop, const QString &launchPath)
{
    if (wordCount == 0)
        return false;
    static const SpelledOutNumber speller(currentLocaleIdentifier());
    const QString number = speller.text(wordCount).value_or(QString::number(wordCount));
    return sayStringOutloud(number + QStringLiteral(" words"), desktop, launchPath);
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
