// SPDX-License-Identifier: MIT
// Makes a message from any bytes and reads it as a pasteboard. A pasteboard that is taken must arrive
// unchanged in a second message. The bytes are a list of forms: the length of a name, the name, what the
// value is, a length, the value.
#include "fuzz/FuzzerInput.h"
#include "platform/services/PasteboardWire.h"
#include "platform/system/SealedMemory.h"

#include <QDBusUnixFileDescriptor>

#include <sys/mman.h>
#include <unistd.h>

namespace {

class Bytes {
public:
    explicit Bytes(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    [[nodiscard]] bool isAtEnd() const { return m_rest.isEmpty(); }
    [[nodiscard]] int number() { return isAtEnd() ? 0 : static_cast<uchar>(take(1).front()); }
    [[nodiscard]] QByteArray array() { return take(number()).toByteArray(); }

private:
    QByteArrayView take(qsizetype length)
    {
        const QByteArrayView taken = m_rest.first(qMin(length, m_rest.size()));
        m_rest = m_rest.sliced(taken.size());
        return taken;
    }

    QByteArrayView m_rest;
};

/// Its sender can still change it.
QVariant openMemory(const QByteArray &bytes)
{
    const OwnedDescriptor memory(::memfd_create("fuzzer", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    require(::write(memory.get(), bytes.constData(), static_cast<size_t>(bytes.size())) == bytes.size());
    return QVariant::fromValue(QDBusUnixFileDescriptor(memory.get()));
}

QVariant sealedMemory(const QByteArray &bytes)
{
    const SealedMemory::MemoryResult memory = SealedMemory::copyOf(bytes);
    return memory ? QVariant::fromValue(QDBusUnixFileDescriptor(memory.value().descriptor())) : QVariant();
}

QVariant value(Bytes &bytes)
{
    switch (bytes.number() % 6) {
    case 0:
        return bytes.array();
    case 1: // one that is too long to travel inside of a message
        return QByteArray(bytes.number() << 10, 'a') + bytes.array();
    case 2:
        return sealedMemory(bytes.array());
    case 3:
        return openMemory(bytes.array());
    case 4:
        return QString::fromUtf8(bytes.array());
    default:
        return QVariant::fromValue(QDBusUnixFileDescriptor());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    Bytes bytes(QByteArrayView(data, static_cast<qsizetype>(size)));
    QVariantMap message;
    while (!bytes.isAtEnd()) {
        const QString name = QString::fromUtf8(bytes.array());
        message.insert(name, value(bytes));
    }
    const std::optional<Pasteboard> pasteboard = PasteboardWire::fromMessage(message);
    if (!pasteboard)
        return 0;
    for (const QUrl &url : pasteboard->readFileURLs())
        require(url.isLocalFile());
    const auto again = PasteboardWire::fromMessage(PasteboardWire::toMessage(*pasteboard));
    require(again && again->forms() == pasteboard->forms());
    return 0;
}
