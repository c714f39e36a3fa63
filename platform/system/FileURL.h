// SPDX-License-Identifier: MIT
// FileURL converts between file: URLs and paths (RFC 8089). A path is bytes in any encoding or none. QUrl
// keeps them percent-encoded, but its own conversions to and from text lose bytes that are not UTF-8, so all
// code converts with these functions.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

/// The absolute path, without trailing slashes; empty if the URL does not name a file of this machine.
QByteArray pathOfFileURL(const QUrl &url);

/// Equal paths give equal URLs. path: absolute; an empty path gives an empty URL.
QUrl fileURLOfPath(const QByteArray &path);

/// name: as a shell gives it, relative to the current folder or absolute.
QUrl fileURLOfName(const QByteArray &name);

/// The name of the file or folder for display, with U+FFFD for bytes that are not UTF-8. Empty if the URL
/// does not name a file of this machine.
QString lastPathComponent(const QUrl &url);
