// SPDX-License-Identifier: MIT
// SpelledOutNumber writes numbers in words, in the language of a locale: "two hundred fifty".
// Thread: one at a time.  Owner: whoever writes numbers.
#pragma once

#include <QString>

#include <memory>
#include <optional>

class SpelledOutNumber {
public:
    /// localeIdentifier: as currentLocaleIdentifier() has it. A language that ICU has no words for gives
    /// those of ICU's root locale.
    explicit SpelledOutNumber(const QString &localeIdentifier);
    SpelledOutNumber(const SpelledOutNumber &) = delete;
    SpelledOutNumber &operator=(const SpelledOutNumber &) = delete;
    ~SpelledOutNumber();

    /// As ICU's rules have it, soft hyphens included. Absent above 2^63 - 1, and where ICU has no rules at
    /// all.
    [[nodiscard]] std::optional<QString> text(quint64 number) const;

private:
    struct Format;
    std::unique_ptr<Format> m_format; // null where ICU has none
};
