// SPDX-License-Identifier: MIT
#include "documents/rtfd/FlatFolder.h"

#include <QtEndian>

#include <vector>

namespace {

/// Takes pieces off the start of the bytes. What reaches beyond their end is absent.
class FlatBytes {
public:
    explicit FlatBytes(QByteArrayView bytes)
        : m_rest(bytes)
    {
    }

    [[nodiscard]] qsizetype remaining() const { return m_rest.size(); }

    std::optional<QByteArrayView> takeBytes(quint32 length)
    {
        if (length > static_cast<quint64>(m_rest.size()))
            return std::nullopt;
        const QByteArrayView bytes = m_rest.first(length);
        m_rest = m_rest.sliced(length);
        return bytes;
    }
    std::optional<quint32> takeWord()
    {
        const std::optional<QByteArrayView> bytes = takeBytes(sizeof(quint32));
        return bytes ? std::optional(qFromLittleEndian<quint32>(bytes->data())) : std::nullopt;
    }
    bool skipWord(quint32 expected) { return takeWord() == expected; }

    /// A length and as many bytes.
    std::optional<QByteArrayView> takeCountedBytes()
    {
        std::optional<quint32> length = takeWord();
        if (length == FlatFormat::paddedLength) {
            length = takeWord();
            const std::optional<quint32> padding = takeWord();
            if (!padding || !takeBytes(*padding))
                return std::nullopt;
        }
        return length ? takeBytes(*length) : std::nullopt;
    }

private:
    QByteArrayView m_rest;
};

bool skipMagic(FlatBytes &bytes)
{
    return bytes.takeBytes(sizeof FlatFormat::magic - 1) == QByteArrayView(FlatFormat::magic)
        && bytes.skipWord(FlatFormat::version) && bytes.skipWord(FlatFormat::folderBlock);
}

std::optional<std::vector<QByteArrayView>> takeNames(FlatBytes &bytes)
{
    const std::optional<quint32> count = bytes.takeWord();
    // Each entry has the length of its name and the size of its block.
    constexpr qsizetype smallestEntry = 2 * sizeof(quint32);
    if (!count || *count > bytes.remaining() / smallestEntry)
        return std::nullopt;
    std::vector<QByteArrayView> names;
    names.reserve(*count);
    for (quint32 i = 0; i < *count; ++i) {
        const std::optional<QByteArrayView> name = bytes.takeCountedBytes();
        if (!name)
            return std::nullopt;
        names.push_back(*name);
    }
    return names;
}

} // namespace

bool FlatFolder::hasMagic(QByteArrayView bytes)
{
    FlatBytes rest(bytes);
    return skipMagic(rest);
}

std::optional<FlatFolder> FlatFolder::parse(QByteArrayView bytes)
{
    FlatBytes rest(bytes);
    if (!skipMagic(rest))
        return std::nullopt;
    const std::optional<std::vector<QByteArrayView>> names = takeNames(rest);
    const auto sizesLength = names ? static_cast<quint32>(names->size() * sizeof(quint32)) : 0;
    const std::optional<QByteArrayView> sizes = rest.takeBytes(sizesLength);
    if (!names || !sizes)
        return std::nullopt;

    FlatFolder folder;
    FlatBytes restOfSizes(*sizes);
    for (const QByteArrayView name : *names) {
        const std::optional<QByteArrayView> block = rest.takeBytes(*restOfSizes.takeWord());
        if (!block)
            return std::nullopt;
        if (!folder.m_blocks.contains(name))
            folder.m_blocks.insert(name, *block);
    }
    return folder;
}

FlatFolder::Entry FlatFolder::entry(QByteArrayView name) const
{
    const auto block = m_blocks.constFind(name);
    if (block == m_blocks.cend())
        return {};
    FlatBytes bytes(*block);
    const std::optional<quint32> kind = bytes.takeWord();
    if (kind && *kind != FlatFormat::fileBlock)
        return {Kind::Other, {}};
    const std::optional<QByteArrayView> contents = bytes.takeCountedBytes();
    return contents ? Entry{Kind::File, *contents} : Entry{Kind::Damaged, {}};
}
