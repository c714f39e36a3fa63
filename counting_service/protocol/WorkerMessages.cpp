// SPDX-License-Identifier: MIT
#include "counting_service/protocol/WorkerMessages.h"

#include <QDataStream>
#include <QIODevice>

#include <algorithm>

namespace {

constexpr quint32 magic = 0x51425957; // "QBYW"

enum class Type : quint16 { Request = 1, Greeting, Reply };

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
        : m_stream(message.first(std::min(message.size(), WorkerMessages::longestMessage + 1)))
    {
        m_stream.setVersion(QDataStream::Qt_6_4);
        quint32 sign = 0;
        quint16 version = 0;
        quint16 number = 0;
        m_stream >> sign >> version >> number;
        m_isExpected = message.size() <= WorkerMessages::longestMessage && sign == magic
            && version == WorkerMessages::version && number == static_cast<quint16>(type);
    }

    QDataStream &stream() { return m_stream; }
    /// Read to its end, and not beyond.
    [[nodiscard]] bool isWhole() const
    {
        return m_isExpected && m_stream.status() == QDataStream::Ok && m_stream.atEnd();
    }

private:
    QDataStream m_stream;
    bool m_isExpected;
};

// In the order in which they travel, as in the answer on the bus.
template <typename Stream, typename Stats>
void transfer(Stream &&each, Stats &stats)
{
    each(stats.numberOfWords);
    each(stats.numberOfCharacters);
    each(stats.numberOfCharactersIncludingWhitespace);
    each(stats.numberOfSentences);
    each(stats.numberOfLines);
    each(stats.numberOfHardLineBreaks);
    each(stats.numberOfParagraphs);
    each(stats.numberOfIndentedParagraphs);
}

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
bool isIn(quint32 number, Enum last)
{
    return number >= 1 && number <= static_cast<quint32>(last);
}

/// A failure as it travels; all 0 where there is none. The errors of files do not travel: a worker opens
/// none.
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

    /// Absent for numbers without a name.
    [[nodiscard]] std::optional<CountFailure> failure() const
    {
        if (!isIn(cause, CountFailure::lastCause))
            return std::nullopt;
        const auto known = static_cast<CountFailure::Cause>(cause);
        if (known != CountFailure::Cause::DocumentUnreadable)
            return documentCause == 0 && documentKind == 0 ? std::optional(CountFailure(known))
                                                           : std::nullopt;
        if (!isIn(documentCause, DocumentError::lastCause) || !isIn(documentKind, lastDocumentKind))
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

bool isKnown(quint32 kind)
{
    return kind == static_cast<quint32>(DocumentKind::Rtfd)
        || kind == static_cast<quint32>(DocumentKind::WordDocument);
}

} // namespace

QByteArray encoded(const WorkerRequest &request)
{
    Writer writer(Type::Request);
    writer.stream() << request.number << static_cast<quint32>(request.kind) << request.length
                    << request.rules;
    return writer.bytes();
}

QByteArray encoded(const WorkerGreeting &greeting)
{
    Writer writer(Type::Greeting);
    writer.stream() << greeting.sandbox.hasNoNewPrivileges << qint32(greeting.sandbox.landlockVersion)
                    << greeting.sandbox.hasSystemCallFilter;
    return writer.bytes();
}

QByteArray encoded(const WorkerReply &reply)
{
    Writer writer(Type::Reply);
    const QBYWordCounterStats stats = reply.counts ? reply.counts.value() : QBYWordCounterStats();
    writer.stream() << reply.number;
    writer.stream() << (reply.counts ? FailureNumbers() : FailureNumbers::of(reply.counts.error()));
    transfer([&](quint64 count) { writer.stream() << count; }, stats);
    return writer.bytes();
}

std::optional<WorkerRequest> decodedRequest(const QByteArray &message)
{
    Reader reader(message, Type::Request);
    WorkerRequest request;
    quint32 kind = 0;
    reader.stream() >> request.number >> kind >> request.length >> request.rules;
    if (!reader.isWhole() || !isKnown(kind))
        return std::nullopt;
    request.kind = static_cast<DocumentKind>(kind);
    return request;
}

std::optional<WorkerGreeting> decodedGreeting(const QByteArray &message)
{
    Reader reader(message, Type::Greeting);
    WorkerGreeting greeting;
    qint32 landlock = 0;
    reader.stream() >> greeting.sandbox.hasNoNewPrivileges >> landlock
        >> greeting.sandbox.hasSystemCallFilter;
    if (!reader.isWhole())
        return std::nullopt;
    greeting.sandbox.landlockVersion = landlock;
    return greeting;
}

std::optional<WorkerReply> decodedReply(const QByteArray &message)
{
    Reader reader(message, Type::Reply);
    quint64 number = 0;
    FailureNumbers failure;
    QBYWordCounterStats stats;
    reader.stream() >> number >> failure;
    transfer([&](quint64 &count) { reader.stream() >> count; }, stats);
    if (!reader.isWhole())
        return std::nullopt;
    if (failure == FailureNumbers())
        return WorkerReply{number, stats};
    const std::optional<CountFailure> known = failure.failure();
    return known ? std::optional(WorkerReply{number, *known}) : std::nullopt;
}
