// SPDX-License-Identifier: MIT
#include "platform/shortcuts/GVariantText.h"

QStringList stringsInGVariant(const QString &text)
{
    QStringList strings;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar quote = text[at];
        if (quote != u'\'' && quote != u'"')
            continue;
        QString string;
        for (++at; at < text.size() && text[at] != quote; ++at) {
            if (text[at] == u'\\' && at + 1 < text.size())
                ++at;
            string += text[at];
        }
        strings.append(string);
    }
    return strings;
}

QString gvariantOf(const QString &string)
{
    QString escaped = string;
    escaped.replace(u'\\', QStringLiteral("\\\\")).replace(u'\'', QStringLiteral("\\'"));
    return u'\'' + escaped + u'\'';
}

QString gvariantOf(const QStringList &strings)
{
    if (strings.isEmpty())
        return QStringLiteral("@as []");
    QStringList quoted;
    for (const QString &string : strings)
        quoted.append(gvariantOf(string));
    return u'[' + quoted.join(QStringLiteral(", ")) + u']';
}
