// SPDX-License-Identifier: MIT
#include "counting_service/protocol/CountFailure.h"

QString causeText(const CountFailure &failure)
{
    switch (failure.cause) {
    case CountFailure::Cause::DocumentMissing:
        return QStringLiteral("the request has no document");
    case CountFailure::Cause::NotSealed:
        return QStringLiteral("is not a memory file sealed against writing and shrinking");
    case CountFailure::Cause::LengthDiffers:
        return QStringLiteral("is not as long as its sender said");
    case CountFailure::Cause::TooLarge:
        return QStringLiteral("is larger than the service accepts");
    case CountFailure::Cause::NotReceived:
        return QStringLiteral("could not be received");
    case CountFailure::Cause::UnknownType:
        return QStringLiteral("is of a type that the counting service does not read");
    case CountFailure::Cause::NoWorker:
        return QStringLiteral("no worker could be started");
    case CountFailure::Cause::WorkerFailed:
        return QStringLiteral("every worker that tried has failed");
    case CountFailure::Cause::DocumentUnreadable:
        break;
    }
    return failure.document ? causeText(*failure.document) : QStringLiteral("could not be read");
}
