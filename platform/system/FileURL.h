// SPDX-License-Identifier: MIT
// The one conversion between file: URLs and paths (RFC 8089). A path is bytes, which need not be text in any
// encoding; QUrl holds them percent-encoded, while its conversions to and from text lose those that are not
// UTF-8. Thread: any.
#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

/// The absolute path, without slashes at its end; empty where the URL names no file of this machine.
QByteArray pathOfFileURL(const QUrl &url);

/// One path has one URL, however it was written before. path: absolute; an empty one gives an empty URL.
QUrl fileURLOfPath(const QByteArray &path);

/// The name of the file or folder, for people to read: what is not UTF-8 in it is U+FFFD. Empty where the URL
/// names no file of this machine.
QString lastPathComponent(const QUrl &url);
