// SPDX-License-Identifier: MIT
#include "counting_service/protocol/WorkerMessages.h"
#include "platform/system/PacketSocket.h"
#include "tests/harness/QuillbayTest.h"

#include <QDir>

#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>
#include <set>
#include <vector>

namespace {

constexpr QBYWordCounterStats eight{.numberOfWords = 1,
    .numberOfCharacters = 2,
    .numberOfCharactersIncludingWhitespace = 3,
    .numberOfSentences = 4,
    .numberOfLines = 5,
    .numberOfHardLineBreaks = 6,
    .numberOfParagraphs = 7,
    .numberOfIndentedParagraphs = ~0ULL};

WorkerRequest sampleRequest()
{
    WorkerRequest request;
    request.number = 77;
    request.kind = DocumentKind::WordDocument;
    request.charset = QByteArray(WorkerMessages::maxCharsetLength, 'c');
    request.length = 1ULL << 40;
    request.rules.localeName = QByteArray(RulesSnapshot::maxLocaleNameLength, 'l');
    request.rules.minimumSentencesOfParagraph = 5;
    request.rules.sentencesNeedTerminalPunctuation = true;
    request.rules.page.paperSize = {612.5, 0.1};
    request.rules.page.leftMargin = -1.0 / 3;
    request.rules.page.rightMargin = 1e300;
    request.rules.page.scale = 2;
    request.rules.page.columnBefore = 451.5;
    return request;
}

/// Only the complete message is accepted: no part, no surplus, no other type.
template <typename Decode>
void expectOnlyComplete(const QByteArray &message, Decode decode)
{
    EXPECT_TRUE(decode(message));
    for (qsizetype length = 0; length < message.size(); ++length)
        EXPECT_FALSE(decode(message.first(length))) << length;
    EXPECT_FALSE(decode(message + '\0'));
    EXPECT_FALSE(decode(message + QByteArray(WorkerMessages::maxLength, '\0')));
    for (qsizetype i = 0; i < 8; ++i) { // signature, version, type
        QByteArray changed = message;
        changed[i] = static_cast<char>(changed[i] + 1);
        EXPECT_FALSE(decode(changed)) << i;
    }
}

} // namespace

TEST(WorkerMessages, ARequestArrivesAsItWasSent)
{
    const WorkerRequest sent = sampleRequest();
    const QByteArray message = encode(sent);
    EXPECT_LE(message.size(), WorkerMessages::maxLength);
    const std::optional<WorkerRequest> arrived = decodeRequest(message);
    ASSERT_TRUE(arrived);
    EXPECT_EQ(arrived->number, sent.number);
    EXPECT_EQ(arrived->kind, sent.kind);
    EXPECT_EQ(arrived->charset, sent.charset);
    EXPECT_EQ(arrived->length, sent.length);
    EXPECT_EQ(arrived->rules.localeName, sent.rules.localeName);
    EXPECT_EQ(arrived->rules.minimumSentencesOfParagraph, sent.rules.minimumSentencesOfParagraph);
    EXPECT_TRUE(arrived->rules.sentencesNeedTerminalPunctuation);
    EXPECT_EQ(arrived->rules.page.paperSize.width(), sent.rules.page.paperSize.width());
    EXPECT_EQ(arrived->rules.page.paperSize.height(), sent.rules.page.paperSize.height());
    EXPECT_EQ(arrived->rules.page.leftMargin, sent.rules.page.leftMargin);
    EXPECT_EQ(arrived->rules.page.rightMargin, sent.rules.page.rightMargin);
    EXPECT_EQ(arrived->rules.page.scale, sent.rules.page.scale);
    EXPECT_EQ(arrived->rules.page.columnBefore, sent.rules.page.columnBefore);
    expectOnlyComplete(message, decodeRequest);
}

TEST(WorkerMessages, ARequestOfAnUnknownKindIsRejected)
{
    WorkerRequest request = sampleRequest();
    for (quint32 kind = 0; kind <= static_cast<quint32>(lastDocumentKind) + 1; ++kind) {
        request.kind = static_cast<DocumentKind>(kind);
        const bool isKnown = kind >= 1 && kind <= static_cast<quint32>(lastDocumentKind);
        EXPECT_EQ(decodeRequest(encode(request)).has_value(), isKnown) << kind;
    }
}

TEST(WorkerMessages, AReplyArrivesAsItWasSent)
{
    const QByteArray message = encode(WorkerReply{9, eight});
    const std::optional<WorkerReply> counted = decodeReply(message);
    ASSERT_TRUE(counted && counted->counts);
    EXPECT_EQ(counted->number, 9U);
    EXPECT_EQ(counted->counts.value(), eight);
    expectOnlyComplete(message, decodeReply);
    const std::optional<WorkerReply> failed = decodeReply(encode(
        WorkerReply{10, CountFailure(DocumentError(DocumentError::Cause::Damaged, DocumentKind::Rtfd))}));
    ASSERT_TRUE(failed && !failed->counts);
    EXPECT_EQ(failed->counts.error(),
        CountFailure(DocumentError(DocumentError::Cause::Damaged, DocumentKind::Rtfd)));
}

TEST(WorkerMessages, ProgressIsNoReply)
{
    const QByteArray message = encode(WorkerProgress{9});
    EXPECT_EQ(decodeProgress(message)->number, 9U);
    expectOnlyComplete(message, decodeProgress);
    EXPECT_FALSE(decodeReply(message));
    EXPECT_FALSE(decodeProgress(encode(WorkerReply{9, eight})));
}

TEST(WorkerMessages, AnUnknownFailureIsRejected)
{
    const auto isReply = [](const CountFailure &failure) {
        return decodeReply(encode(WorkerReply{1, failure})).has_value();
    };
    const auto beyond = static_cast<CountFailure::Cause>(static_cast<quint32>(CountFailure::lastCause) + 1);
    EXPECT_TRUE(isReply(CountFailure::Cause::WorkerFailed));
    EXPECT_FALSE(isReply(beyond));
    EXPECT_FALSE(isReply(CountFailure::Cause::DocumentUnreadable)) << "does not say why";

    const auto causeBeyond =
        static_cast<DocumentError::Cause>(static_cast<quint32>(DocumentError::lastCause) + 1);
    const auto kindBeyond = static_cast<DocumentKind>(static_cast<quint32>(lastDocumentKind) + 1);
    EXPECT_TRUE(isReply(DocumentError(DocumentError::lastCause, lastDocumentKind)));
    EXPECT_FALSE(isReply(DocumentError(causeBeyond, lastDocumentKind)));
    EXPECT_FALSE(isReply(DocumentError(DocumentError::lastCause, kindBeyond)));
}

TEST(WorkerMessages, AGreetingReportsTheSandbox)
{
    const WorkerGreeting sent{
        {.hasNoNewPrivileges = true, .landlockVersion = 6, .hasSystemCallFilter = true}};
    const std::optional<WorkerGreeting> arrived = decodeGreeting(encode(sent));
    ASSERT_TRUE(arrived);
    EXPECT_EQ(arrived->sandbox, sent.sandbox);
    expectOnlyComplete(encode(sent), decodeGreeting);
}

TEST(WorkerMessages, EveryFailureHasItsOwnText)
{
    std::set<QString> texts;
    for (quint32 cause = 1; cause <= static_cast<quint32>(CountFailure::lastCause); ++cause)
        texts.insert(causeText(static_cast<CountFailure::Cause>(cause)));
    for (quint32 cause = 1; cause <= static_cast<quint32>(DocumentError::lastCause); ++cause)
        texts.insert(causeText(CountFailure(
            DocumentError(static_cast<DocumentError::Cause>(cause), DocumentKind::WordDocument))));
    EXPECT_EQ(texts.size(),
        static_cast<size_t>(CountFailure::lastCause) + static_cast<size_t>(DocumentError::lastCause));
}

TEST(PacketSocket, APacketArrivesWithItsDescriptor)
{
    const auto ends = makeSocketPair();
    ASSERT_TRUE(ends);
    const OwnedDescriptor file(::open("/dev/null", O_RDONLY | O_CLOEXEC));
    ASSERT_TRUE(sendPacket(ends->first.get(), "one", file.get()));
    ASSERT_TRUE(sendPacket(ends->first.get(), "two"));
    const auto first = receivePacket(ends->second.get());
    EXPECT_EQ(first.value().message, "one");
    EXPECT_TRUE(first.value().descriptor);
    EXPECT_NE(first.value().descriptor.get(), file.get());
    EXPECT_TRUE(::fcntl(first.value().descriptor.get(), F_GETFD) & FD_CLOEXEC);
    const auto second = tryReceivePacket(ends->second.get());
    EXPECT_EQ(second.value().message, "two");
    EXPECT_FALSE(second.value().descriptor);
    EXPECT_EQ(tryReceivePacket(ends->second.get()).error(), PacketError::WouldBlock);
}

TEST(PacketSocket, AClosedEndIsNoticedAtTheOther)
{
    auto ends = makeSocketPair();
    ASSERT_TRUE(ends);
    {
        const OwnedDescriptor closed = std::move(ends->first);
    }
    EXPECT_EQ(receivePacket(ends->second.get()).error(), PacketError::Closed);
    EXPECT_FALSE(sendPacket(ends->second.get(), "lost"));
}

TEST(PacketSocket, APacketThatIsTooLongIsGarbage)
{
    const auto ends = makeSocketPair();
    ASSERT_TRUE(ends);
    ASSERT_TRUE(sendPacket(ends->first.get(), QByteArray(WorkerMessages::maxLength, 'x')));
    EXPECT_TRUE(receivePacket(ends->second.get()));
    ASSERT_TRUE(sendPacket(ends->first.get(), QByteArray(WorkerMessages::maxLength + 1, 'x')));
    EXPECT_EQ(receivePacket(ends->second.get()).error(), PacketError::Garbage);
}

TEST(PacketSocket, SeveralDescriptorsAreGarbageAndAreClosed)
{
    const auto ends = makeSocketPair();
    ASSERT_TRUE(ends);
    const qsizetype before = QDir(QStringLiteral("/proc/self/fd")).count();
    for (const size_t number : {2U, 3U, 9U}) {
        const std::vector<int> descriptors(number, STDERR_FILENO);
        std::vector<char> control(CMSG_SPACE(number * sizeof(int)));
        char byte = 'x';
        iovec vector{&byte, 1};
        msghdr header = {};
        header.msg_iov = &vector;
        header.msg_iovlen = 1;
        header.msg_control = control.data();
        header.msg_controllen = control.size();
        cmsghdr *part = CMSG_FIRSTHDR(&header);
        part->cmsg_level = SOL_SOCKET;
        part->cmsg_type = SCM_RIGHTS;
        part->cmsg_len = CMSG_LEN(number * sizeof(int));
        std::memcpy(CMSG_DATA(part), descriptors.data(), number * sizeof(int));
        ASSERT_EQ(::sendmsg(ends->first.get(), &header, 0), 1);
        EXPECT_EQ(receivePacket(ends->second.get()).error(), PacketError::Garbage);
    }
    EXPECT_EQ(QDir(QStringLiteral("/proc/self/fd")).count(), before);
}
