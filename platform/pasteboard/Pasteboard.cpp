// SPDX-License-Identifier: MIT
#include "platform/pasteboard/Pasteboard.h"

#include "platform/pasteboard/FileList.h"
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

} // namespace

QList<QUrl> Pasteboard::readFileURLs() const
{
    const std::array readers{
        std::pair{QStringView(urlListType), &FileList::fromUriList},
        std::pair{QStringView(kdeFileListType), &FileList::fromUriList},
        std::pair{QStringView(gnomeFileListType), &FileList::fromGnomeFileList},
    };
    QList<QUrl> files;
    for (const auto &[type, readUrls] : readers) {
        for (const QUrl &url : readUrls(bytesOf(m_forms, type))) {
            // Skips what lies on another machine or is no file.
            if (const QByteArray path = pathOfFileURL(url); !path.isEmpty())
                files.append(fileURLOfPath(path));
        }
        if (!files.isEmpty())
            break;
    }
    return files;
}
