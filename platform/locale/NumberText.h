// SPDX-License-Identifier: MIT
// NumberText writes numbers: as decimal digits, the same in every locale, or in words of a locale's language.
// Thread: any; a SpelledOutNumber one at a time.  Owner: whoever writes numbers.
#pragma once

#include <QString>

#include <memory>
#include <optional>

/// At most the given number of digits (0 to 15) after a ".". Rounds the number's shortest decimal form, ties
/// to the even digit; no trailing zeros, no grouping, ASCII digits: 8.2677 is "8.268" with three digits, 11.0
/// is "11".
QString decimalText(double number, int maxFractionDigits);

/// Writes numbers in words: "two hundred fifty".
class SpelledOutNumber {
public:
    /// localeIdentifier: as returned by currentLocaleIdentifier(). For a language without rules in ICU, the
    /// rules of ICU's root locale.
    explicit SpelledOutNumber(const QString &localeIdentifier);
    SpelledOutNumber(const SpelledOutNumber &) = delete;
    SpelledOutNumber &operator=(const SpelledOutNumber &) = delete;
    ~SpelledOutNumber();

    /// The text of ICU's rules, soft hyphens included. Absent above 2^63 - 1, and if ICU has no rules at all.
    [[nodiscard]] std::optional<QString> text(quint64 number) const;

private:
    struct Format;
    std::unique_ptr<Format> m_format; // null if ICU has no rules
};
