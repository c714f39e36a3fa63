// SPDX-License-Identifier: MIT
// Reads any bytes as a message between the programs of a count. A message that is taken must be the one that
// the same values are written as; the first byte chooses its type.
#include "counting_service/protocol/WorkerMessages.h"
#include "documents/loading/ReaderMessages.h"
#include "fuzz/FuzzerInput.h"

namespace {

template <typename Message>
void read(const QByteArray &bytes, std::optional<Message> (*decode)(const QByteArray &))
{
    const std::optional<Message> message = decode(bytes);
    if (!message)
        return;
    const QByteArray written = encode(*message);
    const std::optional<Message> again = decode(written);
    require(again && encode(*again) == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), static_cast<qsizetype>(size - 1));
    switch (data[0] % 7) {
    case 0:
        read(bytes, decodeRequest);
        break;
    case 1:
        read(bytes, decodeGreeting);
        break;
    case 2:
        read(bytes, decodeProgress);
        break;
    case 3:
        read(bytes, decodeReply);
        break;
    case 4:
        read(bytes, decodeReaderGreeting);
        break;
    case 5:
        read(bytes, decodeReaderRequest);
        break;
    default:
        read(bytes, decodeReaderReply);
        break;
    }
    return 0;
}
