// SPDX-License-Identifier: MIT
// What broker and worker say to each other, as bytes: the worker's greeting, then requests and, to each, one
// reply. Each message is one packet, and short: the document travels beside it, as a descriptor.
// Thread: any; values.
#pragma once

#include "counting_service/protocol/CountFailure.h"
#include "platform/sandbox/Sandbox.h"
#include "platform/system/Result.h"
#include "text_statistics/CountingRules.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace WorkerMessages {

/// In every message; messages of other versions are not understood. Broker and workers are the same program,
/// so there is nothing to be compatible with.
inline constexpr quint16 version = 1;
/// Bytes; longer messages are not taken.
inline constexpr qsizetype longestMessage = 512;

} // namespace WorkerMessages

/// The counting rules in the form that travels: the locale is a name.
struct RulesSnapshot {
    /// Bytes; names of locales are shorter.
    static constexpr qsizetype longestLocaleName = 156;

    QByteArray localeName; ///< as in LANG, or as ICU names locales
    qint64 minimumSentencesOfParagraph = 0;
    bool sentencesNeedTerminalPunctuation = false;
    /// Its paper's name does not travel: no count rests on it. The column before always does, as 0 where
    /// there is none: that of the service, not of the worker.
    PageRules page;
};

struct WorkerRequest {
    quint64 number = 0; ///< of the broker's choice; the reply has the same
    DocumentKind kind = DocumentKind::Rtfd; ///< or WordDocument; no other is taken
    quint64 length = 0; ///< of the document, in bytes
    RulesSnapshot rules;
};

/// Sent by a worker that is ready to count.
struct WorkerGreeting {
    SandboxReport sandbox;
};

struct WorkerReply {
    quint64 number = 0;
    Result<QBYWordCounterStats, CountFailure> counts;
};

QByteArray encoded(const WorkerRequest &request);
QByteArray encoded(const WorkerGreeting &greeting);
QByteArray encoded(const WorkerReply &reply);

// Absent for everything that is not exactly such a message.
std::optional<WorkerRequest> decodedRequest(const QByteArray &message);
std::optional<WorkerGreeting> decodedGreeting(const QByteArray &message);
std::optional<WorkerReply> decodedReply(const QByteArray &message);
