// SPDX-License-Identifier: MIT
// FileList reads the forms in which desktops hand over lists of files.
// Thread: any. Used inside this folder only.
#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

namespace FileList {

/// The entries of a text/uri-list (RFC 2483) that are URLs with a scheme, whatever it is: lines that begin
/// with
/// "#" are comments, empty lines nothing. Bytes that a URL cannot hold are taken for UTF-8.
QList<QUrl> fromUriList(const QByteArray &bytes);
/// The same of GNOME's form, whose first line says "copy" or "cut".
QList<QUrl> fromGnomeFileList(const QByteArray &bytes);

} // namespace FileList
