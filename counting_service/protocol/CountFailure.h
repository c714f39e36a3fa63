// SPDX-License-Identifier: MIT
// CountFailure is why a document has no counts. The cause is for the log, and for senders that ask for it;
// others get eight zeros.
// Thread: any; a value.
#pragma once

#include "documents/DocumentError.h"

#include <QString>

#include <optional>

struct CountFailure {
    /// The numbers travel between broker and worker.
    enum class Cause : quint32 {
        // Found by the broker.
        DocumentMissing = 1, ///< the request has none
        NotSealed, ///< it could still change
        LengthDiffers, ///< it is not as long as its sender said
        TooLarge, ///< larger than the service accepts
        NotReceived, ///< the system failed to hand it over
        UnknownType, ///< its MIME type is none that the service reads
        NoWorker, ///< no worker can be started
        WorkerFailed, ///< two workers ended over it
        // Found by the worker.
        DocumentUnreadable, ///< `document` has the reason
    };
    static constexpr Cause lastCause = Cause::DocumentUnreadable;

    /// whatIsWrong: any but DocumentUnreadable.
    CountFailure(Cause whatIsWrong)
        : cause(whatIsWrong)
    {
    }
    CountFailure(const DocumentError &error)
        : cause(Cause::DocumentUnreadable)
        , document(error)
    {
    }

    [[nodiscard]] bool isOutOfMemory() const
    {
        return document && document->cause == DocumentError::Cause::NotEnoughMemory;
    }

    Cause cause;
    std::optional<DocumentError> document; ///< of DocumentUnreadable

    bool operator==(const CountFailure &) const = default;
};

/// What is wrong, in English on one line, to be printed after a colon: "is encrypted; save it without a
/// password".
QString causeText(const CountFailure &failure);
