// SPDX-License-Identifier: MIT
// Reads any bytes as RTF; reading must end, the text must be sound and its attachments must come from the
// source.
#include "documents/rtf/RtfReader.h"
#include "fuzz/SoundText.h"

#include <cstdint>

namespace {

void requireSoundAttachments(const AttributedString &text)
{
    for (qsizetype i = 0; i < text.runCount(); ++i) {
        const AttributedString::Run run = text.run(i);
        const TextAttributes &attributes = text.distinctAttributes()[run.attributesIndex];
        require(!attributes.attachment || text.string().at(run.start) == QChar(attachmentCharacter));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto source = [](const QString &name) -> std::shared_ptr<const Attachment> {
        if (name.size() % 2 == 0)
            return nullptr;
        return std::make_shared<const Attachment>(Attachment{name, {}});
    };
    const Result<AttributedString, DocumentError> result = readRtf(bytes, source);
    require(result.hasValue() == looksLikeRtf(bytes));
    if (result) {
        require(result.value().length() <= bytes.size());
        requireSound(result.value());
        requireSoundAttachments(result.value());
    }
    return 0;
}
