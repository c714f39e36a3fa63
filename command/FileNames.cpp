// SPDX-License-Identifier: MIT
#include "command/FileNames.h"

#include "platform/system/FileURL.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QString>

#include <algorithm>
#include <utility>

namespace {

bool controlsTerminal(QChar unit)
{
    switch (unit.category()) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        break;
    }
    return (unit >= QChar(0x202A) && unit <= QChar(0x202E))
        || (unit >= QChar(0x2066) && unit <= QChar(0x2069));
}

QString hexadecimal(uint number, int digits)
{
    return QStringLiteral("%1").arg(number, digits, 16, QLatin1Char('0'));
}

/// The bytes of the first character, and true; if it is not valid UTF-8, its first byte, and false.
std::pair<QByteArray, bool> firstCharacter(QByteArrayView bytes)
{
    const auto lead = static_cast<uchar>(bytes[0]);
    const qsizetype length = lead < 0x80 ? 1 : 2 + (lead >= 0xE0) + (lead >= 0xF0);
    const QByteArray character = bytes.first(std::min(length, bytes.size())).toByteArray();
    if (QByteArrayView(character).isValidUtf8())
        return {character, true};
    return {character.first(1), false};
}

QByteArray hexEscapes(const QByteArray &bytes)
{
    QByteArray escaped;
    for (const char byte : bytes)
        escaped += "\\x" + hexadecimal(static_cast<uchar>(byte), 2).toLatin1();
    return escaped;
}

} // namespace

QByteArray printableName(const QByteArray &name)
{
    QString printable;
    for (const QChar unit : QString::fromUtf8(name)) {
        if (!controlsTerminal(unit))
            printable += unit;
        else if (unit.unicode() < 0x100)
            printable += QStringLiteral("\\x") + hexadecimal(unit.unicode(), 2);
        else
            printable += QStringLiteral("\\u") + hexadecimal(unit.unicode(), 4);
    }
    return printable.toUtf8();
}

QByteArray tsvName(const QByteArray &name)
{
    QByteArray escaped;
    for (qsizetype at = 0; at < name.size();) {
        const auto [character, isUtf8] = firstCharacter(QByteArrayView(name).sliced(at));
        at += character.size();
        if (character == "\\")
            escaped += "\\\\";
        else if (character == "\t")
            escaped += "\\t";
        else if (character == "\n")
            escaped += "\\n";
        else if (character == "\r")
            escaped += "\\r";
        else if (!isUtf8 || controlsTerminal(QString::fromUtf8(character).front()))
            escaped += hexEscapes(character);
        else
            escaped += character;
    }
    return escaped;
}

QByteArray jsonName(const QByteArray &name)
{
    const bool isPlain = std::all_of(name.begin(), name.end(),
        [](char byte) { return byte >= ' ' && byte < '\x7F' && byte != '"' && byte != '\\'; });
    if (isPlain) // most of them, by far
        return '"' + name + '"';
    const QByteArray array =
        QJsonDocument(QJsonArray{QString::fromUtf8(name)}).toJson(QJsonDocument::Compact);
    // Qt escapes only the control characters below U+0020.
    QString escaped;
    for (const QChar unit : QString::fromUtf8(array.sliced(1, array.size() - 2))) {
        if (controlsTerminal(unit))
            escaped += QStringLiteral("\\u") + hexadecimal(unit.unicode(), 4);
        else
            escaped += unit;
    }
    return escaped.toUtf8();
}

QByteArray jsonFileMembers(const QByteArray &name)
{
    QByteArray file = "\"file\":" + jsonName(name);
    if (QByteArrayView(name).isValidUtf8())
        return file;
    return file + ",\"url\":\"" + fileURLOfName(name).toEncoded() + '"'; // printable ASCII without quotes
}

QByteArrayList namesInList(const QByteArray &list)
{
    QByteArrayList names = list.split(list.contains('\0') ? '\0' : '\n');
    names.removeAll(QByteArray());
    return names;
}

QByteArrayList namesOfOperands(const QByteArrayList &operands)
{
    QByteArrayList names;
    for (const QByteArray &operand : operands) {
        const QByteArray path =
            operand.startsWith("file:///") ? pathOfFileURL(QUrl::fromEncoded(operand)) : QByteArray();
        names.append(path.isEmpty() ? operand : path);
    }
    return names;
}

QByteArray urlLineOfFile(const QByteArray &name)
{
    return fileURLOfName(name).toEncoded() + "\r\n";
}
