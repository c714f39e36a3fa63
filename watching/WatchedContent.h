// SPDX-License-Identifier: MIT
// WatchedContent remembers which content of a watched document has been counted, so that polls of an
// unchanged document do not read it and nothing is counted twice. Reading is left to WatchTextFileModel.
// Thread: main.  Owner: WatchTextFileModel.
#pragma once

#include "documents/loading/ChangedDocument.h"
#include "platform/file_coordination/FileState.h"
#include "platform/system/Clock.h"

#include <optional>

class WatchedContent {
public:
    /// The time stamps of a file system are at most this coarse (FAT): a file that was written longer ago
    /// cannot change without a new one.
    static constexpr std::chrono::seconds stampGranularity{2};
    /// A write through a mapped page gives a new time stamp late, and a network file system may answer from a
    /// cache: the bytes are compared again after this time, whatever the stamps say.
    static constexpr std::chrono::seconds maxTrust{30};

    /// What can be seen without reading.
    struct Look {
        std::optional<FileState> document;
        std::optional<FileState> preferences; ///< the rules of counting are among them
        Clock::Time time{};
        std::chrono::nanoseconds timeOfDay{};
    };

    explicit WatchedContent(const Clock &clock)
        : m_clock(clock)
    {
    }

    /// To be taken before the document is read: what changes during the read must differ from it.
    [[nodiscard]] Look look(const QByteArray &path) const;

    /// Whether the document and the preferences are as they were when they were counted.
    [[nodiscard]] bool isUnchanged(const Look &look) const;

    /// The hash for loadIfChanged(): absent if the text is needed even if it has not changed.
    [[nodiscard]] std::optional<ContentHash> knownHash(const Look &look) const;

    /// The text to be counted, after the document was read; absent if it was counted under these preferences.
    std::optional<AttributedString> update(const Look &look, const ChangedDocument &document);

    /// Of the text that update() returned last.
    [[nodiscard]] quint64 number() const { return m_number; }
    /// The counts of the text with this number are on the screen. Until then, every update() returns it.
    void setCounted(quint64 number);

    /// Everything but the numbers, which are never used twice.
    void forget();

private:
    [[nodiscard]] bool hasSamePreferences(const Look &look) const;

    const Clock &m_clock;
    std::optional<ContentHash> m_hash;
    std::optional<AttributedString> m_text; // until it is counted
    Look m_seen; // before the bytes were read last
    Look m_given; // before the text was returned last
    quint64 m_number = 0;
    bool m_isCounted = false;
};
