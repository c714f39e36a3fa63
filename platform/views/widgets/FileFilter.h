// SPDX-License-Identifier: MIT
// FileFilter says to a file chooser which names belong to MIME types.
// Thread: any.
#pragma once

#include <QString>
#include <QStringList>

/// A filter in the form of QFileDialog::setNameFilter(): the name patterns of the types and of all that
/// derive from them in the shared MIME database, in any case. Without types, of all files.
QString fileFilterOf(const QStringList &mimeTypes);
