// SPDX-License-Identifier: MIT
#include "counting_service/worker/DocumentReading.h"

#include "platform/styled_text/rtfd/RtfdReader.h"

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

Result<AttributedString, CountFailure> readFlat(QByteArrayView bytes)
{
    Result<AttributedString, RtfdError> text = readFlatRtfd(bytes);
    if (!text)
        return failureOf(text.error());
    return std::move(text).value();
}

} // namespace

Result<AttributedString, CountFailure> readDocument(DocumentKind kind, QByteArrayView bytes)
{
    switch (kind) {
    case DocumentKind::FlatRtfd:
        return readFlat(bytes);
    case DocumentKind::WordDocument:
        break;
    }
    return CountFailure::NoReader;
}
