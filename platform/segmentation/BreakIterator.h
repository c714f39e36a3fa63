// SPDX-License-Identifier: MIT
// BreakIterator finds the boundaries of one kind in a text, first to last, by ICU's root rules and
// dictionaries.
// Thread: one at a time.  Owner: the caller; expensive to make, to be reused for the next text.
#pragma once

#include <QStringView>

#include <memory>

/// The first three follow UAX #29 with the changes of ICU's root locale (a colon never joins two words),
/// lines follow UAX #14.
enum class BreakKind { GraphemeCluster, Word, Sentence, Line };

class BreakIterator {
public:
    /// In UTF-16 code units: ICU's positions have 32 bits.
    static constexpr qsizetype maxTextLength = INT32_MAX;

    explicit BreakIterator(BreakKind kind);
    BreakIterator(BreakIterator &&) noexcept;
    BreakIterator &operator=(BreakIterator &&) noexcept;
    ~BreakIterator();

    /// Starts at position 0. text: must live, unchanged, until the last next(); ignored after maxTextLength.
    void setText(QStringView text);

    /// The next boundary after position 0 in UTF-16 code units. The last one is the text's end; after it, and
    /// for an empty text, returns -1. All calls together take time proportional to the length.
    qsizetype next();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};
