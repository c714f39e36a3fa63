// SPDX-License-Identifier: MIT
// ForeignDocuments are those in the folder QUILLBAY_CORPORA, which other programs have written.
// Thread: any.
#pragma once

#include "documents/reading/KindDetection.h"
#include "tests/harness/QuillbayTest.h"

#include <QDirIterator>
#include <QFile>

#include <functional>

/// Visits every file that is a document. Returns how many there are.
inline int forEachForeignDocument(
    const std::function<void(DocumentKind kind, const QByteArray &bytes, const QString &path)> &visit)
{
    int count = 0;
    for (QDirIterator files(corporaFolder(), QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString path = files.next();
        QFile file(path);
        const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        const Result<DocumentKind, DocumentError> kind = kindOfDocument(QFile::encodeName(path), bytes);
        if (!kind)
            continue;
        visit(kind.value(), bytes, path);
        ++count;
    }
    return count;
}
