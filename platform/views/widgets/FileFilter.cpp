// SPDX-License-Identifier: MIT
#include "platform/views/widgets/FileFilter.h"

#include <QMimeDatabase>

#include <algorithm>

QString fileFilterOf(const QStringList &mimeTypes)
{
    QStringList patterns;
    for (const QMimeType &type : QMimeDatabase().allMimeTypes()) {
        const bool isWanted = std::any_of(
            mimeTypes.begin(), mimeTypes.end(), [&](const QString &wanted) { return type.inherits(wanted); });
        if (isWanted)
            patterns.append(type.globPatterns());
    }
    // Patterns with a blank would be two to the chooser.
    patterns.removeIf(
        [](const QString &pattern) { return pattern.contains(u' ') || pattern.contains(u')'); });
    patterns.removeDuplicates();
    if (patterns.isEmpty())
        patterns.append(QStringLiteral("*"));
    return QStringLiteral("Documents (%1)").arg(patterns.join(u' '));
}
