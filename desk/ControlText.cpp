// SPDX-License-Identifier: MIT
#include "desk/ControlText.h"

#include <QRegularExpression>

QString plainControlText(QString text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&(.)"));
    text.replace(mnemonic, QStringLiteral("\\1"));
    if (text.endsWith(u':'))
        text.chop(1);
    return text;
}
