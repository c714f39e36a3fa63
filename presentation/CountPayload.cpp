// SPDX-License-Identifier: MIT
#include "presentation/CountPayload.h"

#include "documents/rtfd/RtfdWriter.h"
#include "platform/files/FileContents.h"
#include "platform/logging/LogChannel.h"
#include "platform/system/FileURL.h"

namespace {

WordCounterServiceProtocol::Data sealed(const QByteArray &bytes)
{
    SealedMemory::MemoryResult memory = SealedMemory::copyOf(bytes);
    if (!memory) {
        LogChannel::standard().error(u"A document cannot be handed to the counting service: {}",
            {publicly(causeText(memory.error()))});
        return nullptr;
    }
    return std::make_shared<const SealedMemory>(std::move(memory).value());
}

} // namespace

WordCounterServiceProtocol::Data CountPayload::ofText(const AttributedString &text)
{
    const auto rtfd = RTFDFromRange(text, 0, text.length(), {});
    return rtfd ? sealed(rtfd.value()) : nullptr;
}

WordCounterServiceProtocol::Data CountPayload::ofFile(const QUrl &url)
{
    const QByteArray path = pathOfFileURL(url);
    if (path.isEmpty())
        return nullptr;
    const auto contents = readFile(path);
    return contents ? sealed(contents.value()) : nullptr;
}
