// SPDX-License-Identifier: MIT
#include "documents/package/PartNames.h"

#include <QByteArrayList>

namespace {

constexpr qsizetype maxFolders = 100; // of a path

} // namespace

QByteArray resolvePartName(const QByteArray &source, QByteArrayView reference)
{
    const qsizetype fragment = reference.indexOf('#');
    QByteArray path = QByteArray::fromPercentEncoding(
        reference.first(fragment < 0 ? reference.size() : fragment).toByteArray());
    if (!path.startsWith('/'))
        path.prepend(source.first(source.lastIndexOf('/') + 1));
    QByteArrayList folders;
    const QByteArrayList names = path.split('/');
    if (names.size() > maxFolders)
        return {};
    for (const QByteArray &name : names) {
        if (name == "..") {
            if (!folders.isEmpty())
                folders.removeLast();
        } else if (!name.isEmpty() && name != ".") {
            folders.append(name);
        }
    }
    return folders.join('/');
}
