// SPDX-License-Identifier: MIT
// WordCache keeps what shaping found of short words, so that a text shapes each of its words about once.
// Thread: one at a time.  Owner: Shaper.
#pragma once

#include <QStringView>

#include <array>
#include <memory>
#include <vector>

struct CachedWord {
    static constexpr qsizetype longest = 32; // UTF-16 code units

    quint32 style = 0; ///< number of a shaping style, from 1; 0 in an empty slot
    quint8 length = 0;
    bool isSeparable = false; ///< shaped the same with or without the words around it
    std::array<char16_t, longest> text;
    std::array<float, longest> advances; ///< as of Shaper
    std::array<quint8, longest> flags;

    [[nodiscard]] bool holds(quint32 wantedStyle, QStringView wanted) const;
};

/// Of fixed size: words that share a slot push each other out.
class WordCache {
public:
    /// The only slot for a word of 1 to CachedWord::longest code units. Whoever finds another one in it fills
    /// it. Valid until the next call.
    CachedWord &slotFor(quint32 style, QStringView word);

private:
    std::vector<CachedWord> m_slots; // made at the first use
};
