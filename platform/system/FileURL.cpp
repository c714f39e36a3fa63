// SPDX-License-Identifier: MIT
#include "platform/system/FileURL.h"

#include <filesystem>
#include <system_error>

namespace {

bool isOnThisMachine(const QUrl &url)
{
    const QString host = url.host();
    return url.isLocalFile() && (host.isEmpty() || host == QStringLiteral("localhost"));
}

/// Keeps "..": after a symbolic link only the file system can resolve it.
QByteArray absolutePath(const QByteArray &name)
{
    std::error_code error;
    const std::string path = std::filesystem::absolute(name.toStdString(), error).string();
    QByteArray absolute;
    for (const QByteArray &component : QByteArray::fromStdString(path).split('/')) {
        if (!component.isEmpty() && component != ".")
            absolute += '/' + component;
    }
    return absolute.isEmpty() ? "/" : absolute;
}

} // namespace

QByteArray pathOfFileURL(const QUrl &url)
{
    if (!isOnThisMachine(url))
        return {};
    QByteArray path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
    if (!path.startsWith('/') || path.contains('\0'))
        return {};
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path;
}

QUrl fileURLOfPath(const QByteArray &path)
{
    if (path.isEmpty())
        return {};
    // QUrl does not encode these in the URLs that it makes, and treats encoded ones as different.
    constexpr const char *plain = "/!$&'()*+,;=:@[]";
    return QUrl::fromEncoded("file://" + path.toPercentEncoding(plain));
}

QUrl fileURLOfName(const QByteArray &name)
{
    return fileURLOfPath(absolutePath(name));
}

QString lastPathComponent(const QUrl &url)
{
    const QByteArray path = pathOfFileURL(url);
    return QString::fromUtf8(path.size() > 1 ? path.sliced(path.lastIndexOf('/') + 1) : path);
}
