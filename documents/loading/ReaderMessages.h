// SPDX-License-Identifier: MIT
// ReaderMessages are the packets between SandboxedReader and its program, quillbay-document-reader: the
// program's greeting, one request with the document as a descriptor, and one reply. The text itself is
// written to the memory file that the program is started with, in the form of FlatTextFormat.
// Thread: any; values.
#pragma once

#include "documents/DocumentError.h"
#include "platform/system/Result.h"

#include <QByteArray>

#include <optional>

namespace ReaderMessages {

/// The descriptors that the program is started with, beside the standard streams.
inline constexpr int socket = 3;
inline constexpr int resultMemory = 4;

/// Bytes; longer names of an encoding are unknown ones.
inline constexpr qsizetype maxCharsetLength = 64;
/// Bytes; the names of real locales are shorter.
inline constexpr qsizetype maxLocaleNameLength = 156;

/// The exit status of a program that was not started by SandboxedReader.
inline constexpr int wrongUsageStatus = 2;

} // namespace ReaderMessages

/// The program waits for its request, in its sandbox.
struct ReaderGreeting {
    bool hasLandlock = false;

    bool operator==(const ReaderGreeting &) const = default;
};

struct ReaderRequest {
    DocumentKind kind = DocumentKind::PlainText;
    quint64 length = 0; ///< of the document, in bytes
    QByteArray charset; ///< as in ReadOptions
    QByteArray localeName; ///< the user's, which decides between encodings of the same bytes

    bool operator==(const ReaderRequest &) const = default;
};

struct ReaderReply {
    Result<quint64, DocumentError> length; ///< bytes of flat text
};

QByteArray encode(const ReaderGreeting &greeting);
/// Names that are too long are left out.
QByteArray encode(const ReaderRequest &request);
QByteArray encode(const ReaderReply &reply);

// Absent unless the bytes are exactly one message of that type with known numbers.
std::optional<ReaderGreeting> decodeReaderGreeting(const QByteArray &message);
std::optional<ReaderRequest> decodeReaderRequest(const QByteArray &message);
std::optional<ReaderReply> decodeReaderReply(const QByteArray &message);
