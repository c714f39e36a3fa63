// SPDX-License-Identifier: MIT
// FolderFiles finds the documents of a folder whose names match a pattern.
// Thread: any.
#pragma once

#include <QByteArrayList>
#include <QString>

/// The files in the folder and the folders in it, sorted by path; hidden ones and symbolic links to folders
/// are left out. pattern: as "*.md", or several separated by blanks. Not more than maxFiles.
QByteArrayList filesOfFolder(const QString &folder, const QString &pattern, int maxFiles);
