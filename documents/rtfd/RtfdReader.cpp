// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdReader.h"

#include "documents/rtfd/FlatFolder.h"
#include "documents/rtfd/FlatFormat.h"
#include "documents/rtfd/RtfWithFiles.h"

#include <new>

namespace {

Result<AttributedString, RtfdError> textOf(const FlatFolder &folder)
{
    const FlatFolder::Entry text = folder.entry(FlatFormat::textName);
    switch (text.kind) {
    case FlatFolder::Kind::Missing:
    case FlatFolder::Kind::Other:
        return RtfdError{RtfdError::Cause::NoText};
    case FlatFolder::Kind::Damaged:
        return RtfdError{RtfdError::Cause::Damaged};
    case FlatFolder::Kind::File:
        break;
    }
    return readRtfWithFiles(text.contents, [&](const QByteArray &name) -> std::optional<QByteArray> {
        const FlatFolder::Entry file = folder.entry(name);
        if (file.kind == FlatFolder::Kind::Missing || file.kind == FlatFolder::Kind::Damaged)
            return std::nullopt;
        return file.contents.toByteArray();
    });
}

} // namespace

QString causeText(const RtfdError &error)
{
    switch (error.cause) {
    case RtfdError::Cause::NotRtfd:
        return QStringLiteral("is not an RTFD");
    case RtfdError::Cause::Damaged:
        return QStringLiteral("is a damaged RTFD");
    case RtfdError::Cause::NoText:
        return QStringLiteral("is an RTFD without TXT.rtf");
    case RtfdError::Cause::TextNotRtf:
        return QStringLiteral("is an RTFD whose TXT.rtf is not RTF");
    case RtfdError::Cause::Unreadable:
        return error.file ? causeText(*error.file) : QStringLiteral("cannot be read");
    case RtfdError::Cause::TextUnreadable:
        return QStringLiteral("TXT.rtf in it: ")
            + (error.file ? causeText(*error.file) : QStringLiteral("cannot be read"));
    case RtfdError::Cause::TooLong:
        return QStringLiteral("is larger than 2 GiB");
    case RtfdError::Cause::NotEnoughMemory:
        break;
    }
    return QStringLiteral("not enough memory");
}

bool looksLikeFlatRtfd(QByteArrayView bytes)
{
    return FlatFolder::hasMagic(bytes);
}

Result<AttributedString, RtfdError> readFlatRtfd(QByteArrayView bytes)
{
    if (!FlatFolder::hasMagic(bytes))
        return RtfdError{RtfdError::Cause::NotRtfd};
    try {
        const std::optional<FlatFolder> folder = FlatFolder::parsed(bytes);
        return folder ? textOf(*folder) : RtfdError{RtfdError::Cause::Damaged};
    } catch (const std::bad_alloc &) {
        return RtfdError{RtfdError::Cause::NotEnoughMemory};
    }
}
