// SPDX-License-Identifier: MIT
// TypeDescription describes a file type of the shared MIME database in the language of our messages, which
// may not be that of the user. Which type a document has, it leaves to KindDetection.
// Thread: any.
#pragma once

#include <QMimeType>
#include <QString>

/// With its article, for use after "is": "a PNG image", "an MP4 video", "WAV audio". "a binary file" for the
/// type of unknown bytes. Reads a file of the database.
QString typeDescription(const QMimeType &type);

/// A description with its article. Abbreviations are spelled out letter by letter ("an RPM package"), unless
/// they can be said as a word ("a RAR archive"); what cannot be counted has no article ("MP3 audio").
QString withArticle(const QString &description);
