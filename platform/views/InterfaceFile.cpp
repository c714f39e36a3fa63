// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceFile.h"

#include "platform/views/InterfaceReader.h"

#include <QFile>

InterfaceFile InterfaceFile::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: cannot be opened: %s", qPrintable(path), qPrintable(file.errorString()));
    Result<InterfaceFile, QString> interface = parse(file.readAll(), path);
    if (!interface)
        qFatal("%s", qPrintable(interface.error()));
    return std::move(interface).value();
}

Result<InterfaceFile, QString> InterfaceFile::parse(const QByteArray &contents, const QString &file)
{
    return InterfaceReader(contents, file).read();
}

void InterfaceFile::endProcess(const QString &outletName) const
{
    qFatal("%s: there is no view %s of the expected class", qPrintable(m_file), qPrintable(outletName));
}

std::optional<qint64> InterfaceFile::integerProperty(const QString &viewName, const QString &name) const
{
    const QHash<QString, qint64> numbers = m_outlets.value(viewName).numbers;
    const auto number = numbers.constFind(name);
    return number == numbers.cend() ? std::nullopt : std::optional(*number);
}
