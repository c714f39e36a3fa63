// SPDX-License-Identifier: MIT
// SystemError puts the errors of system calls into words: in English for log lines, in the user's language
// for messages.
// Thread: any.
#pragma once

#include <QString>

#include <cstring>

/// The description of an errno, as "No such file or directory". Unlike strerror(), it does not follow the
/// user's locale. The number if the system has no description of it.
inline QString systemErrorText(int number)
{
    const char *description = ::strerrordesc_np(number);
    return description ? QString::fromLatin1(description) : QString::number(number);
}

/// The same in the user's language, for the errors that users meet; others in English.
QString translatedSystemError(int number);
