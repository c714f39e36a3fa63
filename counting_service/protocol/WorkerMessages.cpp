// SPDX-License-Identifier: MIT
#include "counting_service/protocol/WorkerMessages.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>

namespace {

constexpr quint32 magic = 0x51425957; // "QBYW"

enum class Type : quint16 { Request = 1, Greeting, Progress, Reply };

class Writer {
public:
    explicit Writer(Type type)
        : m_stream(&m_bytes, QIODevice::WriteOnly)
    {
        m_stream.setVersion(QDataStream::Qt_6_4);
        m_stream << magic << WorkerMessages::version << static_cast<quint16>(type);
    }

    QDataStream &stream() { return m_stream; }
    [[nodiscard]] QByteArray bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    QDataStream m_stream;
};

class Reader {
public:
    Reader(const QByteArray &message, Type type)
        : m_stream(message.first(std::min(message.size(), WorkerMessages::maxLength + 1)))
    {
        m_stream.setVersion(QDataStream::Qt_6_4);
        quint32 signature = 0;
        quint16 version = 0;
        quint16 number = 0;
        m_stream >> signature >> version >> number;
        m_hasExpectedHeader = message.size() <= WorkerMessages::maxLength && signature == magic
            && version == WorkerMessages::version && number == static_cast<quint16>(type);
    }

    QDataStream &stream() { return m_stream; }
    /// Whether the message has the expected header and was read exactly to its end.
    [[nodiscard]] bool isComplete() const
    {
        return m_hasExpectedHeader && m_stream.status() == QDataStream::Ok && m_stream.atEnd();
    }

private:
    QDataStream m_stream;
    bool m_hasExpectedHeader;
};

QDataStream &operator<<(QDataStream &stream, const RulesSnapshot &rules)
{
    return stream << rules.localeName << rules.minimumSentencesOfParagraph
                  << rules.sentencesNeedTerminalPunctuation << rules.page.paperSize << rules.page.leftMargin
                  << rules.page.rightMargin << rules.page.scale << rules.page.columnBefore.value_or(0);
}

QDataStream &operator>>(QDataStream &stream, RulesSnapshot &rules)
{
    double columnBefore = 0;
    stream >> rules.localeName >> rules.minimumSentencesOfParagraph >> rules.sentencesNeedTerminalPunctuation
        >> rules.page.paperSize >> rules.page.leftMargin >> rules.page.rightMargin >> rules.page.scale
        >> columnBefore;
    rules.page.columnBefore = columnBefore;
    return stream;
}

template <typename Enum>
bool isInRange(quint32 number, Enum last)
{
    return number >= 1 && number <= static_cast<quint32>(last);
}

/// A failure as it is sent; all 0 if there is none. File errors are not sent, as workers open no files.
struct FailureNumbers {
    quint32 cause = 0;
    quint32 documentCause = 0;
    quint32 documentKind = 0;

    static FailureNumbers of(const CountFailure &failure)
    {
        FailureNumbers numbers{.cause = static_cast<quint32>(failure.cause)};
        if (failure.document) {
            numbers.documentCause = static_cast<quint32>(failure.document->cause);
            numbers.documentKind = static_cast<quint32>(failure.document->kind);
        }
        return numbers;
    }

    /// Absent if a number is unknown.
    [[nodiscard]] std::optional<CountFailure> failure() const
    {
        if (!isInRange(cause, CountFailure::lastCause))
            return std::nullopt;
        const auto known = static_cast<CountFailure::Cause>(cause);
        if (known != CountFailure::Cause::DocumentUnreadable)
            return documentCause == 0 && documentKind == 0 ? std::optional(CountFailure(known))
                                                           : std::nullopt;
        if (!isInRange(documentCause, DocumentError::lastCause) || !isInRange(documentKind, lastDocumentKind))
            return std::nullopt;
        return CountFailure(DocumentError(
            static_cast<DocumentError::Cause>(documentCause), static_cast<DocumentKind>(documentKind)));
    }

    bool operator==(const FailureNumbers &) const = default;
};

QDataStream &operator<<(QDataStream &stream, const FailureNumbers &numbers)
{
    return stream << numbers.cause << numbers.documentCause << numbers.documentKind;
}

QDataStream &operator>>(QDataStream &stream, FailureNumbers &numbers)
{
    return stream >> numbers.cause >> numbers.documentCause >> numbers.documentKind;
}

} // namespace

QByteArray encode(const WorkerRequest &request)
{
    Writer writer(Type::Request);
    writer.stream() << request.number << static_cast<quint32>(request.kind) << request.charset
                    << request.length << request.rules;
    return writer.bytes();
}

QByteArray encode(const WorkerGreeting &greeting)
{
    Writer writer(Type::Greeting);
    writer.stream() << greeting.sandbox.hasNoNewPrivileges
                    << static_cast<qint32>(greeting.sandbox.landlockVersion)
                    << greeting.sandbox.hasSystemCallFilter;
    return writer.bytes();
}

QByteArray encode(const WorkerProgress &progress)
{
    Writer writer(Type::Progress);
    writer.stream() << progress.number;
    return writer.bytes();
}

QByteArray encode(const WorkerReply &reply)
{
    Writer writer(Type::Reply);
    const QBYWordCounterStats stats = reply.counts ? reply.counts.value() : QBYWordCounterStats();
    writer.stream() << reply.number;
    writer.stream() << (reply.counts ? FailureNumbers() : FailureNumbers::of(reply.counts.error()));
    for (const StatisticRow &row : statisticTable)
        writer.stream() << stats.*row.count;
    return writer.bytes();
}

std::optional<WorkerRequest> decodeRequest(const QByteArray &message)
{
    Reader reader(message, Type::Request);
    WorkerRequest request;
    quint32 kind = 0;
    reader.stream() >> request.number >> kind >> request.charset >> request.length >> request.rules;
    if (!reader.isComplete() || !isInRange(kind, lastDocumentKind))
        return std::nullopt;
    request.kind = static_cast<DocumentKind>(kind);
    return request;
}

std::optional<WorkerGreeting> decodeGreeting(const QByteArray &message)
{
    Reader reader(message, Type::Greeting);
    WorkerGreeting greeting;
    qint32 landlock = 0;
    reader.stream() >> greeting.sandbox.hasNoNewPrivileges >> landlock
        >> greeting.sandbox.hasSystemCallFilter;
    if (!reader.isComplete())
        return std::nullopt;
    greeting.sandbox.landlockVersion = landlock;
    return greeting;
}

std::optional<WorkerProgress> decodeProgress(const QByteArray &message)
{
    Reader reader(message, Type::Progress);
    WorkerProgress progress;
    reader.stream() >> progress.number;
    return reader.isComplete() ? std::optional(progress) : std::nullopt;
}

std::optional<WorkerReply> decodeReply(const QByteArray &message)
{
    Reader reader(message, Type::Reply);
    quint64 number = 0;
    FailureNumbers failure;
    QBYWordCounterStats stats;
    reader.stream() >> number >> failure;
    for (const StatisticRow &row : statisticTable)
        reader.stream() >> stats.*row.count;
    if (!reader.isComplete())
        return std::nullopt;
    if (failure == FailureNumbers())
        return WorkerReply{number, stats};
    const std::optional<CountFailure> known = failure.failure();
    return known ? std::optional(WorkerReply{number, *known}) : std::nullopt;
}
