// SPDX-License-Identifier: MIT
#include "counting_service/worker/DocumentReading.h"

#include "documents/docx/DocxReader.h"
#include "documents/rtfd/RtfdReader.h"

namespace {

CountFailure failureOf(const RtfdError &error)
{
    using Cause = RtfdError::Cause;
    switch (error.cause) {
    case Cause::NotRtfd:
        return CountFailure::NotRtfd;
    case Cause::NoText:
        return CountFailure::RtfdWithoutText;
    case Cause::TextNotRtf:
        return CountFailure::RtfdTextNotRtf;
    case Cause::TooLong:
        return CountFailure::TextTooLong;
    case Cause::NotEnoughMemory:
        return CountFailure::NotEnoughMemory;
    case Cause::Damaged:
    case Cause::Unreadable: // this one and the next are of folders
    case Cause::TextUnreadable:
        break;
    }
    return CountFailure::DamagedRtfd;
}

CountFailure failureOf(DocxError error)
{
    switch (error) {
    case DocxError::NotWordDocument:
        return CountFailure::NotWordDocument;
    case DocxError::OldWordDocument:
        return CountFailure::OldWordDocument;
    case DocxError::Encrypted:
        return CountFailure::EncryptedWordDocument;
    case DocxError::TooLarge:
        return CountFailure::WordDocumentTooLarge;
    case DocxError::TooIntricate:
        return CountFailure::WordDocumentTooIntricate;
    case DocxError::UnreadableChunk:
        return CountFailure::UnreadableChunk;
    case DocxError::NotEnoughMemory:
        return CountFailure::NotEnoughMemory;
    case DocxError::Damaged:
        break;
    }
    return CountFailure::DamagedWordDocument;
}

/// What a reader gave, with its cause of failure as one of many.
template <typename Error>
Result<AttributedString, CountFailure> textOf(Result<AttributedString, Error> text)
{
    if (!text)
        return failureOf(text.error());
    return std::move(text).value();
}

} // namespace

Result<AttributedString, CountFailure> readDocument(PayloadKind kind, QByteArrayView bytes)
{
    switch (kind) {
    case PayloadKind::FlatRtfd:
        break;
    case PayloadKind::WordDocument:
        return textOf(readDocx(bytes));
    }
    return textOf(readFlatRtfd(bytes));
}
