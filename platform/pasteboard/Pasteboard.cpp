// SPDX-License-Identifier: MIT
#include "platform/pasteboard/Pasteboard.h"

#include "platform/pasteboard/MediaType.h"
#include "platform/system/FileURL.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

using Form = Pasteboard::Forms::value_type;

QByteArray bytesOf(const Pasteboard::Forms &forms, QStringView wanted)
{
    const auto found = std::find_if(forms.begin(), forms.end(),
        [&](const Form &form) { return MediaType::parse(form.first).name == wanted; });
    return found == forms.end() ? QByteArray() : found->second;
}

/// Some programs do not encode the bytes of a path. QUrl accepts only text, and a path need not be text.
QByteArray percentEncodeNonAscii(const QByteArray &entry)
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

/// The entries of a text/uri-list (RFC 2483) that are URLs with any scheme. Lines that begin with "#" are
/// comments. Bytes that a URL cannot contain are taken for UTF-8.
QList<QUrl> urlsOfUriList(const QByteArray &bytes)
{
    QList<QUrl> urls;
    for (const QByteArray &line : bytes.split('\n')) {
        // Lines end in CR LF; some programs end the list with a NUL.
        QByteArray entry = line.trimmed();
        while (entry.endsWith('\0'))
            entry.chop(1);
        if (entry.isEmpty() || entry.startsWith('#'))
            continue;
        const QUrl url = QUrl::fromEncoded(percentEncodeNonAscii(entry));
        if (url.isValid() && !url.isRelative())
            urls.append(url);
    }
    return urls;
}

/// The same for GNOME's form, whose first line is "copy" or "cut".
QList<QUrl> urlsOfGnomeFileList(const QByteArray &bytes)
{
    const qsizetype firstEnd = bytes.indexOf('\n');
    return firstEnd < 0 ? QList<QUrl>() : urlsOfUriList(bytes.mid(firstEnd + 1));
}

} // namespace

QList<QUrl> Pasteboard::readFileURLs() const
{
    const std::array readers{
        std::pair{QStringView(urlListType), &urlsOfUriList},
        std::pair{QStringView(kdeFileListType), &urlsOfUriList},
        std::pair{QStringView(gnomeFileListType), &urlsOfGnomeFileList},
    };
    QList<QUrl> files;
    for (const auto &[type, readUrls] : readers) {
        for (const QUrl &url : readUrls(bytesOf(m_forms, type))) {
            // Skips files of other machines, and URLs that are not files.
            if (const QByteArray path = pathOfFileURL(url); !path.isEmpty())
                files.append(fileURLOfPath(path));
        }
        if (!files.isEmpty())
            break;
    }
    return files;
}
