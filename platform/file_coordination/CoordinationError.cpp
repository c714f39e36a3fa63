// SPDX-License-Identifier: MIT
#include "platform/file_coordination/CoordinationError.h"

QString causeText(const CoordinationError &error)
{
    switch (error.cause) {
    case CoordinationError::Cause::LockedByWriter:
        return QStringLiteral("is locked by a program that writes to it");
    case CoordinationError::Cause::NotRelinquished:
        break;
    }
    return QStringLiteral("is not given up by its presenter");
}
