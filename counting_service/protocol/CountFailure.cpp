// SPDX-License-Identifier: MIT
#include "counting_service/protocol/CountFailure.h"

#include <QCoreApplication>

// In English, for log lines and for clients, which translate it.
QString causeText(const CountFailure &failure)
{
    switch (failure.cause) {
    case CountFailure::Cause::DocumentMissing:
        return QStringLiteral(QT_TRANSLATE_NOOP("counting_service", "the request has no document"));
    case CountFailure::Cause::NotSealed:
        return QStringLiteral(QT_TRANSLATE_NOOP(
            "counting_service", "is not a memory file sealed against writing and shrinking"));
    case CountFailure::Cause::LengthDiffers:
        return QStringLiteral(QT_TRANSLATE_NOOP("counting_service", "is not as long as its sender said"));
    case CountFailure::Cause::TooLarge:
        return QStringLiteral(QT_TRANSLATE_NOOP("counting_service", "is larger than the service accepts"));
    case CountFailure::Cause::NotReceived:
        return QStringLiteral(QT_TRANSLATE_NOOP("counting_service", "could not be received"));
    case CountFailure::Cause::UnknownType:
        return QStringLiteral(
            QT_TRANSLATE_NOOP("counting_service", "is of a type that the counting service does not read"));
    case CountFailure::Cause::NoWorker:
        return QStringLiteral(QT_TRANSLATE_NOOP("counting_service", "no worker could be started"));
    case CountFailure::Cause::WorkerFailed:
        return QStringLiteral(QT_TRANSLATE_NOOP("counting_service", "every worker that tried has failed"));
    case CountFailure::Cause::DocumentUnreadable:
        break;
    }
    return failure.document ? causeText(*failure.document)
                            : QStringLiteral(QT_TRANSLATE_NOOP("counting_service", "could not be read"));
}
