// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdReader.h"

#include "documents/rtf/RtfReader.h"
#include "documents/rtfd/FlatFolder.h"

#include <functional>
#include <memory>
#include <new>
#include <optional>

namespace {

/// Whether an attachment can be stored in the folder under that name.
bool isFileName(const QByteArray &name)
{
    return !name.isEmpty() && name != "." && name != ".." && name != FlatFormat::textName
        && !name.contains('/') && !name.contains('\0');
}

DocumentError errorFor(DocumentError::Cause causeOfRtf)
{
    const bool isNotRtf = causeOfRtf == DocumentError::Cause::WrongKind;
    return {isNotRtf ? DocumentError::Cause::TextNotRtf : causeOfRtf, DocumentKind::Rtfd};
}

/// The contents of a file by its name in UTF-8, empty for a folder; absent where the file is missing or must
/// not be read. Called once for each name, and only for names that an attachment in a folder can have.
using FileSource = std::function<std::optional<QByteArray>(const QByteArray &name)>;

Result<AttributedString, DocumentError> readRtfWithFiles(QByteArrayView rtf, const FileSource &contentsOf)
{
    const auto attachmentOf = [&](const QString &storedName) -> std::shared_ptr<const Attachment> {
        const QByteArray name = storedName.toUtf8();
        std::optional<QByteArray> contents = isFileName(name) ? contentsOf(name) : std::nullopt;
        return contents ? std::make_shared<const Attachment>(Attachment{storedName, *std::move(contents)})
                        : nullptr;
    };
    Result<AttributedString, DocumentError> text = readRtf(rtf, attachmentOf);
    if (!text)
        return errorFor(text.error().cause);
    return std::move(text).value();
}

Result<AttributedString, DocumentError> readFolder(const FlatFolder &folder)
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

Result<AttributedString, DocumentError> readFlatRtfd(QByteArrayView bytes)
{
    if (!looksLikeFlatRtfd(bytes))
        return DocumentError(DocumentError::Cause::WrongKind, DocumentKind::Rtfd);
    try {
        const std::optional<FlatFolder> folder = FlatFolder::parse(bytes);
        return folder ? readFolder(*folder)
                      : DocumentError(DocumentError::Cause::Damaged, DocumentKind::Rtfd);
    } catch (const std::bad_alloc &) {
        return DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::Rtfd);
    }
}
