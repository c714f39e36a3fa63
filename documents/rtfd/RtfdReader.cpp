// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdReader.h"

#include "documents/rtfd/FlatFolder.h"
#include "documents/rtfd/FlatFormat.h"
#include "documents/rtfd/RtfWithFiles.h"

#include <new>

namespace {

Result<AttributedString, DocumentError> textOf(const FlatFolder &folder)
{
    const FlatFolder::Entry text = folder.entry(FlatFormat::textName);
    switch (text.kind) {
    case FlatFolder::Kind::Missing:
    case FlatFolder::Kind::Other:
        return DocumentError(DocumentError::Cause::TextMissing, DocumentKind::Rtfd);
    case FlatFolder::Kind::Damaged:
        return DocumentError(DocumentError::Cause::Damaged, DocumentKind::Rtfd);
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

bool looksLikeFlatRtfd(QByteArrayView bytes)
{
    return FlatFolder::hasMagic(bytes);
}

Result<AttributedString, DocumentError> readFlatRtfd(QByteArrayView bytes)
{
    if (!FlatFolder::hasMagic(bytes))
        return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Rtfd);
    try {
        const std::optional<FlatFolder> folder = FlatFolder::parsed(bytes);
        return folder ? textOf(*folder) : DocumentError(DocumentError::Cause::Damaged, DocumentKind::Rtfd);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtfd);
    }
}
