// SPDX-License-Identifier: MIT
#include "documents/loading/ReaderMessages.h"

#include <QDataStream>
#include <QIODevice>

#include <utility>

namespace {

constexpr quint32 readerMagic = 0x51425944; // "QBYD"
constexpr quint16 readerVersion = 1;

enum class MessageType : quint16 { Greeting = 1, Request, Reply };

template <typename... Fields>
QByteArray bytesOf(MessageType type, const Fields &...fields)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << readerMagic << readerVersion << static_cast<quint16>(type);
    (stream << ... << fields);
    return bytes;
}

/// Whether the message is of that type and has exactly these fields.
template <typename... Fields>
bool takeFields(const QByteArray &message, MessageType type, Fields &...fields)
{
    QDataStream stream(message);
    stream.setVersion(QDataStream::Qt_6_4);
    quint32 magic = 0;
    quint16 version = 0;
    quint16 number = 0;
    stream >> magic >> version >> number;
    (stream >> ... >> fields);
    return stream.status() == QDataStream::Ok && stream.atEnd() && magic == readerMagic
        && version == readerVersion && number == static_cast<quint16>(type);
}

QByteArray nameWithin(const QByteArray &name, qsizetype maxLength)
{
    return name.size() <= maxLength ? name : QByteArray();
}

template <typename Enum>
std::optional<Enum> knownValue(quint32 number, Enum last)
{
    const bool isKnown = number >= 1 && number <= static_cast<quint32>(last);
    return isKnown ? std::optional(static_cast<Enum>(number)) : std::nullopt;
}

} // namespace

QByteArray encode(const ReaderGreeting &greeting)
{
    return bytesOf(MessageType::Greeting, greeting.hasLandlock);
}

QByteArray encode(const ReaderRequest &request)
{
    return bytesOf(MessageType::Request, static_cast<quint32>(request.kind), request.length,
        nameWithin(request.charset, ReaderMessages::maxCharsetLength),
        nameWithin(request.localeName, ReaderMessages::maxLocaleNameLength));
}

// Errors of files are not sent: the program opens none.
QByteArray encode(const ReaderReply &reply)
{
    if (reply.length)
        return bytesOf(MessageType::Reply, quint32{0}, quint32{0}, reply.length.value());
    const DocumentError &error = reply.length.error();
    return bytesOf(
        MessageType::Reply, static_cast<quint32>(error.cause), static_cast<quint32>(error.kind), quint64{0});
}

std::optional<ReaderGreeting> decodeReaderGreeting(const QByteArray &message)
{
    ReaderGreeting greeting;
    return takeFields(message, MessageType::Greeting, greeting.hasLandlock) ? std::optional(greeting)
                                                                            : std::nullopt;
}

std::optional<ReaderRequest> decodeReaderRequest(const QByteArray &message)
{
    ReaderRequest request;
    quint32 kind = 0;
    const bool isWhole =
        takeFields(message, MessageType::Request, kind, request.length, request.charset, request.localeName);
    const std::optional<DocumentKind> known = knownValue(kind, lastDocumentKind);
    if (!isWhole || !known)
        return std::nullopt;
    request.kind = *known;
    return request;
}

std::optional<ReaderReply> decodeReaderReply(const QByteArray &message)
{
    quint32 cause = 0;
    quint32 kind = 0;
    quint64 length = 0;
    if (!takeFields(message, MessageType::Reply, cause, kind, length))
        return std::nullopt;
    if (cause == 0)
        return kind == 0 ? std::optional(ReaderReply{length}) : std::nullopt;
    const auto knownCause = knownValue(cause, DocumentError::lastCause);
    const auto knownKind = knownValue(kind, lastDocumentKind);
    if (!knownCause || !knownKind || length != 0)
        return std::nullopt;
    return ReaderReply{DocumentError(*knownCause, *knownKind)};
}
