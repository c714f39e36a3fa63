// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfWithFiles.h"

#include "documents/rtf/RtfReader.h"
#include "documents/rtfd/FlatFormat.h"

#include <memory>

namespace {

/// Whether an attachment can lie in the folder under that name.
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

} // namespace

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
