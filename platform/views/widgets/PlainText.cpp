// SPDX-License-Identifier: MIT
#include "platform/views/widgets/PlainText.h"

#include <QTextDocument>

QString plainToolTip(const QString &text)
{
    if (!Qt::mightBeRichText(text))
        return text;
    QString plain;
    for (const QChar character : text) {
        plain += character;
        if (character == u'<' || character == u'&')
            plain += QChar(0x2060);
    }
    return plain;
}

QString plainWindowTitle(const QString &title)
{
    const QString placeholder = QStringLiteral("[*]");
    return QString(title).replace(placeholder, placeholder + placeholder);
}
