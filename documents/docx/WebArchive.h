// SPDX-License-Identifier: MIT
// WebArchive finds the page in a web archive (MIME, RFC 2045, 2046 and 2557: .mht), the form in which some
// programs put web pages into Word documents. Its pictures and style sheets are left alone.
// Thread: any; values.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

struct WebArchivePage {
    QByteArray contents; ///< as a server would send it
    QByteArray charset; ///< empty where the archive does not say
};

/// Whether the bytes begin with headers of MIME.
bool looksLikeWebArchive(QByteArrayView bytes);

/// The first page that the archive holds, or the whole where it is no multipart; absent where it holds none.
/// Takes time proportional to the length.
std::optional<WebArchivePage> pageOfWebArchive(QByteArrayView bytes);
