// SPDX-License-Identifier: MIT
#include "platform/pasteboard/MediaType.h"

#include <algorithm>

namespace {

/// The end of the parameter, in which quoted text may contain semicolons.
qsizetype endOfParameter(QStringView text)
{
    bool isQuoted = false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (text[at] == u'"')
            isQuoted = !isQuoted;
        else if (isQuoted && text[at] == u'\\')
            ++at;
        else if (!isQuoted && text[at] == u';')
            return at;
    }
    return text.size();
}

/// RFC 2045 has no single quotes, but programs use them.
QByteArray unquote(QStringView value)
{
    for (const QChar quote : {u'"', u'\''}) {
        if (value.size() >= 2 && value.startsWith(quote) && value.endsWith(quote))
            return value.mid(1, value.size() - 2).toString().remove(u'\\').trimmed().toLatin1();
    }
    return value.toLatin1();
}

} // namespace

MediaType MediaType::parse(const QString &text)
{
    const QString lowerCase = text.toLower();
    QStringView rest = lowerCase;
    const qsizetype nameEnd = std::min(endOfParameter(rest), rest.size());
    MediaType type{rest.first(nameEnd).trimmed().toString(), {}};
    for (rest = rest.sliced(nameEnd); !rest.isEmpty() && type.charset.isEmpty();) {
        rest = rest.sliced(1);
        const QStringView parameter = rest.first(endOfParameter(rest));
        rest = rest.sliced(parameter.size());
        const qsizetype equals = parameter.indexOf(u'=');
        if (equals >= 0 && parameter.first(equals).trimmed() == u"charset")
            type.charset = unquote(parameter.sliced(equals + 1).trimmed());
    }
    return type;
}
