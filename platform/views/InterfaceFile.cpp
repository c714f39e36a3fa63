// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceFile.h"

#include "platform/views/InterfaceBuilder.h"
#include "platform/views/InterfaceReader.h"

#include <QFile>

#include <utility>

Result<InterfaceFile, InterfaceError> InterfaceFile::load(const QString &path, const InterfaceMakers &makers)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return InterfaceError{InterfaceError::Cause::CannotBeRead, path, 0, file.errorString()};
    const QByteArray contents = file.read(largestSize + 1);
    if (file.error() != QFileDevice::NoError)
        return InterfaceError{InterfaceError::Cause::CannotBeRead, path, 0, file.errorString()};
    return parse(contents, path, makers);
}

InterfaceFile InterfaceFile::loadOwn(const QString &path)
{
    Result<InterfaceFile, InterfaceError> file = load(path);
    if (!file)
        endProcess(file.error());
    return std::move(file).value();
}

void InterfaceFile::endProcess(const InterfaceError &error)
{
    qFatal("%s", qPrintable(messageText(error)));
}

Result<InterfaceFile, InterfaceError> InterfaceFile::parse(
    const QByteArray &contents, const QString &file, const InterfaceMakers &makers)
{
    if (contents.size() > largestSize)
        return InterfaceError{InterfaceError::Cause::TooLarge, file};
    InterfaceReader reader(contents, file);
    if (!reader.read())
        return reader.error();
    return InterfaceBuilder(reader.takeWidgets(), file, makers).build();
}

template <typename Value>
std::optional<Value> InterfaceFile::property(const QString &viewName, const QString &name) const
{
    const auto place = m_places.constFind(viewName);
    if (place == m_places.cend())
        return std::nullopt;
    const auto value = place->properties.constFind(name);
    if (value == place->properties.cend() || value->metaType() != QMetaType::fromType<Value>())
        return std::nullopt;
    return value->template value<Value>();
}

std::optional<qint64> InterfaceFile::integerProperty(const QString &viewName, const QString &name) const
{
    return property<qint64>(viewName, name);
}

std::optional<bool> InterfaceFile::booleanProperty(const QString &viewName, const QString &name) const
{
    return property<bool>(viewName, name);
}

std::optional<QString> InterfaceFile::stringProperty(const QString &viewName, const QString &name) const
{
    return property<QString>(viewName, name);
}
