// SPDX-License-Identifier: MIT
#include "platform/files/FileError.h"

#include "platform/system/SystemError.h"

QString causeText(const FileError &error)
{
    switch (error.cause) {
    case FileError::Cause::NoSuchFile:
        return QStringLiteral("no such file");
    case FileError::Cause::Folder:
        return QStringLiteral("is a folder");
    case FileError::Cause::NamedPipe:
        return QStringLiteral("is a named pipe");
    case FileError::Cause::Device:
        return QStringLiteral("is a device");
    case FileError::Cause::Socket:
        return QStringLiteral("is a socket");
    case FileError::Cause::NoPermission:
        return QStringLiteral("permission denied");
    case FileError::Cause::TooLarge:
        return QStringLiteral("is larger than 2 GiB");
    case FileError::Cause::NotEnoughMemory:
        return QStringLiteral("not enough memory");
    case FileError::Cause::TooManySymbolicLinks:
        return QStringLiteral("too many symbolic links");
    case FileError::Cause::NameTooLong:
        return QStringLiteral("name is too long");
    case FileError::Cause::InUse:
        return QStringLiteral("is in use by another program");
    case FileError::Cause::ReadFailed:
        break;
    }
    return QStringLiteral("cannot be read (%1)").arg(systemErrorText(error.systemError));
}
