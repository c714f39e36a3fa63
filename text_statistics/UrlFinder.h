// SPDX-License-Identifier: MIT
// UrlFinder finds the addresses in a text: with a scheme and "://", or starting with "www." or "mailto:". An
// address ends at white space, an angle bracket or a quotation mark; punctuation at its end is not part of
// it.
// Thread: any.  Owner: the code that counts; of one text.
#pragma once

#include <QStringView>

#include <optional>

class UrlFinder {
public:
    struct Url {
        qsizetype start; ///< UTF-16 code units
        qsizetype end;

        bool operator==(const Url &) const = default;
    };

    explicit UrlFinder(QStringView text)
        : m_text(text)
    {
    }

    /// The address that a position is in, or the next one after it. Positions must not decrease; all calls
    /// together take time proportional to the length of the text.
    std::optional<Url> atOrAfter(qsizetype position);

private:
    [[nodiscard]] std::optional<Url> urlIn(qsizetype start, qsizetype end) const;

    QStringView m_text;
    qsizetype m_at = 0;
    std::optional<Url> m_found;
};
