// SPDX-License-Identifier: MIT
#include "command/FileNames.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QString>

QByteArray printableName(const QByteArray &name)
{
    QString printable;
    for (const QChar unit : QString::fromUtf8(name)) {
        if (unit.category() == QChar::Other_Control)
            printable += QStringLiteral("\\x%1").arg(unit.unicode(), 2, 16, QLatin1Char('0'));
        else
            printable += unit;
    }
    return printable.toUtf8();
}

QByteArray tsvName(const QByteArray &name)
{
    return QString::fromUtf8(name)
        .replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\t', QStringLiteral("\\t"))
        .replace(u'\n', QStringLiteral("\\n"))
        .replace(u'\r', QStringLiteral("\\r"))
        .toUtf8();
}

QByteArray jsonName(const QByteArray &name)
{
    const QByteArray array =
        QJsonDocument(QJsonArray{QString::fromUtf8(name)}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

QByteArrayList namesInList(const QByteArray &list)
{
    QByteArrayList names = list.split(list.contains('\0') ? '\0' : '\n');
    names.removeAll(QByteArray());
    return names;
}
