// SPDX-License-Identifier: MIT
// CountFailure is why a document has no counts. Whoever asked gets eight zeros; the cause is for the log.
// Thread: any; a value.
#pragma once

#include <QString>

/// The numbers travel between broker and worker.
enum class CountFailure : quint32 {
    // Found by the broker.
    Absent = 1, ///< its sender has none
    NotSealed, ///< it could still change
    LengthDiffers, ///< it is not as long as its sender said
    TooLarge, ///< longer than anything that is counted
    NotReceived, ///< the system failed to hand it over
    NoWorker, ///< no worker can be started
    WorkerFailed, ///< two workers ended over it
    // Found by the worker.
    NotRtfd,
    DamagedRtfd,
    RtfdWithoutText,
    RtfdTextNotRtf,
    NotWordDocument,
    OldWordDocument, ///< of Word 97 to 2003
    EncryptedWordDocument,
    DamagedWordDocument,
    WordDocumentTooLarge, ///< unpacked
    WordDocumentTooIntricate,
    UnreadableChunk, ///< a part of a Word document is in a format that nothing reads
    TextTooLong,
    NotEnoughMemory,
};
inline constexpr CountFailure lastCountFailure = CountFailure::NotEnoughMemory;

/// In English, to stand behind "The document ": "is a damaged RTFD".
QString causeText(CountFailure failure);
