// SPDX-License-Identifier: MIT
#include "platform/pasteboard/FileList.h"

QList<QUrl> FileList::fromUriList(const QByteArray &bytes)
{
    QList<QUrl> urls;
    for (const QByteArray &line : bytes.split('\n')) {
        // Lines end in CR LF; some programs end the list with a NUL.
        QByteArray entry = line.trimmed();
        while (entry.endsWith('\0'))
            entry.chop(1);
        if (entry.isEmpty() || entry.startsWith('#'))
            continue;
        const QUrl url(QString::fromUtf8(entry), QUrl::TolerantMode);
        if (url.isValid() && !url.isRelative())
            urls.append(url);
    }
    return urls;
}

QList<QUrl> FileList::fromGnomeFileList(const QByteArray &bytes)
{
    const qsizetype firstEnd = bytes.indexOf('\n');
    return firstEnd < 0 ? QList<QUrl>() : fromUriList(bytes.mid(firstEnd + 1));
}
