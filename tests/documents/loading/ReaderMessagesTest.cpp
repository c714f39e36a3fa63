// SPDX-License-Identifier: MIT
#include "documents/loading/ReaderMessages.h"

#include "platform/system/PacketSocket.h"

#include <gtest/gtest.h>

namespace {

using Cause = DocumentError::Cause;

const ReaderRequest request{.kind = DocumentKind::Html,
    .length = 5'000'000'000,
    .charset = "windows-1252",
    .localeName = "sr_RS@latin"};

} // namespace

TEST(ReaderMessages, ArriveAsTheyWereSent)
{
    EXPECT_EQ(decodeReaderRequest(encode(request)), request);
    EXPECT_EQ(decodeReaderGreeting(encode(ReaderGreeting{true})), ReaderGreeting{true});
    EXPECT_EQ(decodeReaderGreeting(encode(ReaderGreeting{false})), ReaderGreeting{false});
    EXPECT_EQ(decodeReaderReply(encode(ReaderReply{quint64{77}}))->length.value(), 77U);
    EXPECT_EQ(decodeReaderReply(encode(ReaderReply{quint64{0}}))->length.value(), 0U);
    for (quint32 number = 1; number <= static_cast<quint32>(DocumentError::lastCause); ++number) {
        const DocumentError error(static_cast<Cause>(number), lastDocumentKind);
        EXPECT_EQ(decodeReaderReply(encode(ReaderReply{error}))->length.error(), error) << number;
    }
}

TEST(ReaderMessages, FitIntoAPacketWhateverTheNamesAre)
{
    ReaderRequest longNames = request;
    longNames.charset = QByteArray(1'000, 'x');
    longNames.localeName = QByteArray(1'000, 'x');
    EXPECT_LE(encode(longNames).size(), maxPacketLength);
    EXPECT_EQ(decodeReaderRequest(encode(longNames))->charset, QByteArray());
    longNames.charset = QByteArray(ReaderMessages::maxCharsetLength, 'x');
    longNames.localeName = QByteArray(ReaderMessages::maxLocaleNameLength, 'x');
    EXPECT_LE(encode(longNames).size(), maxPacketLength);
    EXPECT_EQ(decodeReaderRequest(encode(longNames)), longNames);
}

TEST(ReaderMessages, AreAbsentWhereTheyAreCutContinuedOrOfAnotherType)
{
    const QByteArray bytes = encode(request);
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(decodeReaderRequest(bytes.first(length))) << length;
    EXPECT_FALSE(decodeReaderRequest(bytes + '\0'));
    EXPECT_FALSE(decodeReaderRequest(encode(ReaderGreeting{true})));
    EXPECT_FALSE(decodeReaderGreeting(bytes));
    EXPECT_FALSE(decodeReaderReply(bytes));
}

TEST(ReaderMessages, AreAbsentWhereANumberIsUnknown)
{
    const auto withKind = [](DocumentKind kind) {
        ReaderRequest changed = request;
        changed.kind = kind;
        return encode(changed);
    };
    EXPECT_FALSE(decodeReaderRequest(withKind(static_cast<DocumentKind>(0))));
    EXPECT_FALSE(
        decodeReaderRequest(withKind(static_cast<DocumentKind>(static_cast<quint32>(lastDocumentKind) + 1))));
    const auto unknown = static_cast<Cause>(static_cast<quint32>(DocumentError::lastCause) + 1);
    EXPECT_FALSE(decodeReaderReply(encode(ReaderReply{DocumentError(unknown, DocumentKind::Rtf)})));
    EXPECT_FALSE(
        decodeReaderReply(encode(ReaderReply{DocumentError(Cause::Damaged, static_cast<DocumentKind>(0))})));
}
