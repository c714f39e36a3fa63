// SPDX-License-Identifier: MIT
// The messages between broker and worker, as bytes: the worker's greeting, then requests and one reply to
// each, at most one sign of progress before it. A message is one short packet; the document is sent with it
// as a descriptor (PacketSocket.h).
// Thread: any; values.
#pragma once

#include "counting_service/protocol/CountFailure.h"
#include "platform/sandbox/Sandbox.h"
#include "platform/system/PacketSocket.h"
#include "platform/system/Result.h"
#include "text_statistics/CountingRules.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace WorkerMessages {

/// Part of every message. Broker and workers are the same program, so other versions are rejected.
inline constexpr quint16 version = 3;
/// Bytes; longer messages are rejected.
inline constexpr qsizetype maxLength = maxPacketLength;
/// Bytes; real names of charsets are shorter.
inline constexpr qsizetype maxCharsetLength = 64;

} // namespace WorkerMessages

/// The counting rules as they are sent to a worker: with the locale as a name.
struct RulesSnapshot {
    /// Bytes; real names of locales are shorter.
    static constexpr qsizetype maxLocaleNameLength = 156;

    QByteArray localeName; ///< as in LANG, or as ICU names locales
    qint64 minimumSentencesOfParagraph = 0;
    bool sentencesNeedTerminalPunctuation = false;
    /// Sent without the name of the paper, which no count depends on. columnBefore is that of the service; it
    /// is sent as 0 if there is none, so that a worker never uses the column of its own previous count.
    PageRules page;
};

struct WorkerRequest {
    quint64 number = 0; ///< chosen by the broker; the reply repeats it
    DocumentKind kind = DocumentKind::Rtfd;
    QByteArray charset; ///< as of ReadOptions
    quint64 length = 0; ///< of the document, in bytes
    RulesSnapshot rules;
};

/// Sent by a worker that is ready to count.
struct WorkerGreeting {
    SandboxReport sandbox;
};

/// Sent by a worker that has read the document and begins to count it.
struct WorkerProgress {
    quint64 number = 0; ///< of the request
};

struct WorkerReply {
    quint64 number = 0;
    Result<QBYWordCounterStats, CountFailure> counts;
};

QByteArray encode(const WorkerRequest &request);
QByteArray encode(const WorkerGreeting &greeting);
QByteArray encode(const WorkerProgress &progress);
QByteArray encode(const WorkerReply &reply);

// Absent unless the bytes are exactly one message of that type.
std::optional<WorkerRequest> decodeRequest(const QByteArray &message);
std::optional<WorkerGreeting> decodeGreeting(const QByteArray &message);
std::optional<WorkerProgress> decodeProgress(const QByteArray &message);
std::optional<WorkerReply> decodeReply(const QByteArray &message);
