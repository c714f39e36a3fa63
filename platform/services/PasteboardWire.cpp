// SPDX-License-Identifier: MIT
#include "platform/services/PasteboardWire.h"

#include "platform/system/SealedMemory.h"

#include <QDBusUnixFileDescriptor>

namespace {

std::optional<QByteArray> bytesInMemoryFile(const QDBusUnixFileDescriptor &file)
{
    const SealedMemory::MemoryResult memory = SealedMemory::receive(file.fileDescriptor());
    if (!memory || static_cast<quint64>(memory.value().size()) > PasteboardWire::maxPasteboardSize)
        return std::nullopt;
    return memory.value().bytes().toByteArray();
}

std::optional<QByteArray> bytesOf(const QVariant &value)
{
    if (value.metaType() == QMetaType::fromType<QByteArray>())
        return value.toByteArray();
    if (value.metaType() == QMetaType::fromType<QDBusUnixFileDescriptor>())
        return bytesInMemoryFile(value.value<QDBusUnixFileDescriptor>());
    return std::nullopt;
}

QVariant valueFor(const QByteArray &bytes)
{
    if (bytes.size() <= PasteboardWire::maxInlineSize)
        return bytes;
    const SealedMemory::MemoryResult memory = SealedMemory::copyOf(bytes);
    return memory ? QVariant::fromValue(QDBusUnixFileDescriptor(memory.value().descriptor())) : QVariant();
}

} // namespace

QVariantMap PasteboardWire::toMessage(const Pasteboard &pasteboard)
{
    QVariantMap map;
    for (const auto &[type, bytes] : pasteboard.forms()) {
        if (const QVariant value = valueFor(bytes); value.isValid())
            map.insert(type, value);
    }
    return map;
}

std::optional<Pasteboard> PasteboardWire::fromMessage(const QVariantMap &map)
{
    if (map.size() > maxForms)
        return std::nullopt;
    Pasteboard::Forms forms;
    quint64 total = 0;
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
        std::optional<QByteArray> bytes = bytesOf(entry.value());
        if (!bytes)
            return std::nullopt;
        total += static_cast<quint64>(bytes->size());
        if (total > maxPasteboardSize)
            return std::nullopt;
        forms.emplace(entry.key(), *std::move(bytes));
    }
    return Pasteboard(std::move(forms));
}
