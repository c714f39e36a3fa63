// SPDX-License-Identifier: MIT
#include "platform/pasteboard/MediaType.h"

#include <QStringList>

namespace {

QByteArray unquoted(const QString &value)
{
    const bool isQuoted = value.size() >= 2 && value.startsWith(u'"') && value.endsWith(u'"');
    return (isQuoted ? value.mid(1, value.size() - 2) : value).toLatin1();
}

} // namespace

MediaType MediaType::parse(const QString &text)
{
    const QStringList parts = text.toLower().split(u';');
    MediaType type{parts.first().trimmed(), {}};
    for (const QString &part : parts.mid(1)) {
        const QString parameter = part.trimmed();
        if (parameter.startsWith(u"charset="))
            type.charset = unquoted(parameter.mid(8).trimmed());
    }
    return type;
}
