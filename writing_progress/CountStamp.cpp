// SPDX-License-Identifier: MIT
#include "writing_progress/CountStamp.h"

#include "platform/file_coordination/FileState.h"
#include "preferences/QBYUserDefaultsController.h"

#include <QDateTime>

QByteArray countStamp(const QByteArray &path)
{
    constexpr qint64 granularity = 2000; // milliseconds; of FAT, the coarsest
    constexpr qint64 nanosecondsOfMillisecond = 1'000'000;
    const std::optional<FileState> document = fileStateAt(path);
    if (!document
        || QDateTime::currentMSecsSinceEpoch() - document->modified / nanosecondsOfMillisecond < granularity)
        return {};
    // The rules of counting are in the file of the preferences.
    const std::optional<FileState> rules =
        fileStateAt(QBYUserDefaultsController::sharedUserDefaults().path());
    return QByteArray::number(document->size) + ' ' + QByteArray::number(document->modified) + ' '
        + QByteArray::number(document->changed) + ' ' + QByteArray::number(rules ? rules->modified : 0);
}
