// SPDX-License-Identifier: MIT
#include "platform/system/SystemError.h"

#include <QCoreApplication>

namespace {

/// As the C library has them, for the translators.
[[maybe_unused]] constexpr const char *commonErrors[] = {
    QT_TRANSLATE_NOOP("platform/system", "Operation not permitted"),
    QT_TRANSLATE_NOOP("platform/system", "No such file or directory"),
    QT_TRANSLATE_NOOP("platform/system", "Input/output error"),
    QT_TRANSLATE_NOOP("platform/system", "No such device or address"),
    QT_TRANSLATE_NOOP("platform/system", "Cannot allocate memory"),
    QT_TRANSLATE_NOOP("platform/system", "Permission denied"),
    QT_TRANSLATE_NOOP("platform/system", "Device or resource busy"),
    QT_TRANSLATE_NOOP("platform/system", "File exists"),
    QT_TRANSLATE_NOOP("platform/system", "No such device"),
    QT_TRANSLATE_NOOP("platform/system", "Not a directory"),
    QT_TRANSLATE_NOOP("platform/system", "Is a directory"),
    QT_TRANSLATE_NOOP("platform/system", "Invalid argument"),
    QT_TRANSLATE_NOOP("platform/system", "Too many open files in system"),
    QT_TRANSLATE_NOOP("platform/system", "Too many open files"),
    QT_TRANSLATE_NOOP("platform/system", "File too large"),
    QT_TRANSLATE_NOOP("platform/system", "No space left on device"),
    QT_TRANSLATE_NOOP("platform/system", "Read-only file system"),
    QT_TRANSLATE_NOOP("platform/system", "Broken pipe"),
    QT_TRANSLATE_NOOP("platform/system", "File name too long"),
    QT_TRANSLATE_NOOP("platform/system", "Too many levels of symbolic links"),
    QT_TRANSLATE_NOOP("platform/system", "Disk quota exceeded"),
    QT_TRANSLATE_NOOP("platform/system", "Stale file handle"),
    QT_TRANSLATE_NOOP("platform/system", "Connection timed out"),
    QT_TRANSLATE_NOOP("platform/system", "Connection refused"),
    QT_TRANSLATE_NOOP("platform/system", "Transport endpoint is not connected"),
    QT_TRANSLATE_NOOP("platform/system", "Host is down"),
    QT_TRANSLATE_NOOP("platform/system", "No route to host"),
    QT_TRANSLATE_NOOP("platform/system", "Exec format error"),
    QT_TRANSLATE_NOOP("platform/system", "Bad file descriptor"),
    QT_TRANSLATE_NOOP("platform/system", "Resource temporarily unavailable"),
};

} // namespace

QString translatedSystemError(int number)
{
    return QCoreApplication::translate("platform/system", systemErrorText(number).toLatin1().constData());
}
