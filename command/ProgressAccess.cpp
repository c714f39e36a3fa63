// SPDX-License-Identifier: MIT
#include "command/ProgressAccess.h"

#include "command/CommandWords.h"
#include "command/CountColumn.h"
#include "command/FileNames.h"
#include "platform/defaults/FaultText.h"
#include "platform/system/FileURL.h"

#include <algorithm>

QByteArray pathOfName(const QByteArray &name)
{
    return pathOfFileURL(fileURLOfName(name));
}

int reportStoreFault(const ProgressStore &store, const DatabaseFault &fault)
{
    reportError(
        CommandText::tr("%1: cannot be used: %2; check the permissions and the free space of its folder")
            .arg(QString::fromUtf8(printableName(store.path())), faultText(fault.reason)));
    return 1;
}

void reportBrokenFile(const ProgressStore &store)
{
    if (!store.brokenFile().isEmpty())
        reportError(CommandText::tr("%1: is damaged; it was renamed to %2, and a new list of documents begun")
                        .arg(QString::fromUtf8(printableName(store.path())),
                            QString::fromUtf8(printableName(store.brokenFile()))));
}

int statusOf(const ProgressStore &store, const ProgressStore::Failure &failure)
{
    reportBrokenFile(store);
    return failure ? reportStoreFault(store, *failure) : 0;
}

std::optional<Statistic> goalStatisticNamed(const QByteArray &name)
{
    const auto *const found = std::ranges::find_if(
        goalStatistics, [&](Statistic statistic) { return typedNameOf(statistic) == name.toStdString(); });
    return found == goalStatistics.end() ? std::nullopt : std::optional(*found);
}
