// SPDX-License-Identifier: MIT
#include "platform/pasteboard/FileList.h"

namespace {

/// Some programs leave the bytes of a path as they are. QUrl takes text, which they need not be.
QByteArray withCodesAboveAscii(const QByteArray &entry)
{
    QByteArray ascii;
    for (const char byte : entry) {
        if (static_cast<uchar>(byte) < 0x80)
            ascii += byte;
        else
            ascii += QByteArray(1, byte).toPercentEncoding();
    }
    return ascii;
}

} // namespace

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
        const QUrl url = QUrl::fromEncoded(withCodesAboveAscii(entry));
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
