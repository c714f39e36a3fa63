// SPDX-License-Identifier: MIT
#include "counting_service/protocol/CountFailure.h"

QString causeText(CountFailure failure)
{
    switch (failure) {
    case CountFailure::Absent:
        return QStringLiteral("could not be had by the program that wants its counts");
    case CountFailure::NotSealed:
        return QStringLiteral("is not a memory file sealed against writing and shrinking");
    case CountFailure::LengthDiffers:
        return QStringLiteral("is not as long as its sender said");
    case CountFailure::TooLarge:
        return QStringLiteral("is longer than any that is counted");
    case CountFailure::NotReceived:
        return QStringLiteral("could not be taken over from its sender");
    case CountFailure::NoWorker:
        return QStringLiteral("was not counted, as no worker could be started");
    case CountFailure::WorkerFailed:
        return QStringLiteral("was not counted, as the workers that tried have failed");
    case CountFailure::NotRtfd:
        return QStringLiteral("is not an RTFD");
    case CountFailure::DamagedRtfd:
        return QStringLiteral("is a damaged RTFD");
    case CountFailure::RtfdWithoutText:
        return QStringLiteral("is an RTFD without a text");
    case CountFailure::RtfdTextNotRtf:
        return QStringLiteral("is an RTFD whose text is not RTF");
    case CountFailure::NotWordDocument:
        return QStringLiteral("is not a Word document");
    case CountFailure::OldWordDocument:
        return QStringLiteral("is a Word document of 1997 to 2003");
    case CountFailure::EncryptedWordDocument:
        return QStringLiteral("is an encrypted Word document");
    case CountFailure::DamagedWordDocument:
        return QStringLiteral("is a damaged Word document");
    case CountFailure::WordDocumentTooLarge:
        return QStringLiteral("is a Word document with more in it than is read");
    case CountFailure::WordDocumentTooIntricate:
        return QStringLiteral("is a Word document with deeper markup than is read");
    case CountFailure::UnreadableChunk:
        return QStringLiteral("is a Word document with a part in a format that cannot be read");
    case CountFailure::TextTooLong:
        return QStringLiteral("has a longer text than can be counted");
    case CountFailure::NotEnoughMemory:
        return QStringLiteral("needs more memory than there is");
    }
    return QStringLiteral("was not counted");
}
