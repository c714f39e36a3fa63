// SPDX-License-Identifier: MIT
#include "desk/documents/FolderFiles.h"

#include <QDirIterator>

#include <algorithm>

QByteArrayList filesOfFolder(const QString &folder, const QString &pattern, int maxFiles)
{
    constexpr int maxSteps = 200'000; // of a folder such as / that was chosen by mistake
    QByteArrayList files;
    QDirIterator entries(
        folder, pattern.split(u' ', Qt::SkipEmptyParts), QDir::Files, QDirIterator::Subdirectories);
    for (int step = 0; step < maxSteps && entries.hasNext() && files.size() < maxFiles; ++step)
        files.append(QFile::encodeName(entries.next()));
    std::ranges::sort(files);
    return files;
}
