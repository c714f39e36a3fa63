// SPDX-License-Identifier: MIT
#include "platform/views/InterfaceError.h"

#include "platform/views/InterfaceFile.h"

namespace {

QString causeText(const InterfaceError &error)
{
    switch (error.cause) {
    case InterfaceError::Cause::CannotBeRead:
        return QStringLiteral("cannot be read: %1").arg(error.detail);
    case InterfaceError::Cause::TooLarge:
        return QStringLiteral("is larger than %1 bytes").arg(InterfaceFile::largestSize);
    case InterfaceError::Cause::NotWellFormed:
        return QStringLiteral("is not well-formed: %1").arg(error.detail);
    case InterfaceError::Cause::NotAnInterface:
        return QStringLiteral("is no form of version 4 with one widget at its root");
    case InterfaceError::Cause::UnsupportedElement:
        return QStringLiteral("the element %1 is not supported").arg(error.detail);
    case InterfaceError::Cause::UnsupportedProperty:
        return QStringLiteral("the property %1 is not supported here").arg(error.detail);
    case InterfaceError::Cause::BadValue:
        return QStringLiteral("the property %1 has a value that it cannot have").arg(error.detail);
    case InterfaceError::Cause::TooDeep:
        return QStringLiteral("widgets are nested deeper than %1").arg(InterfaceFile::deepestNesting);
    case InterfaceError::Cause::TooManyViews:
        return QStringLiteral("there are more than %1 widgets").arg(InterfaceFile::mostViews);
    case InterfaceError::Cause::UnknownClass:
        return QStringLiteral("no view can be made for the class %1").arg(error.detail);
    case InterfaceError::Cause::DuplicateName:
        return QStringLiteral("a second widget is named %1").arg(error.detail);
    case InterfaceError::Cause::MissingOutlet:
        return QStringLiteral("no widget is named %1").arg(error.detail);
    case InterfaceError::Cause::OutletOfOtherClass:
        return QStringLiteral("the widget %1 is of another class than expected").arg(error.detail);
    }
    return {};
}

} // namespace

QString messageText(const InterfaceError &error)
{
    const QString place =
        error.line > 0 ? QStringLiteral("%1:%2").arg(error.file).arg(error.line) : error.file;
    return place + QStringLiteral(": ") + causeText(error);
}
