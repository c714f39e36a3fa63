// SPDX-License-Identifier: MIT
#include "platform/system/ContentHash.h"

#include <QRandomGenerator>

#define XXH_INLINE_ALL
#include <xxhash.h>

#include <array>

namespace {

using Secret = std::array<quint32, 48>; // 192 bytes: XXH3 uses all of them

const Secret &secret()
{
    static const Secret numbers = [] {
        Secret random;
        QRandomGenerator::system()->fillRange(random.data(), random.size());
        return random;
    }();
    return numbers;
}

XXH128_hash_t hashOf(const void *bytes, size_t length)
{
    return XXH3_128bits_withSecret(bytes, length, secret().data(), sizeof(Secret));
}

} // namespace

ContentHash contentHash(QByteArrayView bytes, const ContentHash &before)
{
    const XXH128_hash_t own = hashOf(bytes.data(), static_cast<size_t>(bytes.size()));
    const std::array<quint64, 5> chain{
        before.low, before.high, own.low64, own.high64, static_cast<quint64>(bytes.size())};
    const XXH128_hash_t hash = hashOf(chain.data(), sizeof chain);
    return {hash.low64, hash.high64};
}
