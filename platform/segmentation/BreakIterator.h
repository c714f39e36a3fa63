// SPDX-License-Identifier: MIT
// BreakIterator finds the boundaries of one kind in a text, first to last, by ICU's root rules and
// dictionaries. Thread: one at a time.  Owner: whoever makes it; dear to make, cheap to use again for the
// next text.
#pragma once

#include <QStringView>

#include <memory>

/// UAX #29 for the first three, with the few changes of the root locale (a colon never joins two words); UAX
/// #14 for lines.
enum class BreakKind { GraphemeCluster, Word, Sentence, Line };

class BreakIterator {
public:
    /// The longest text there can be, in UTF-16 code units: ICU's positions are 32 bits wide.
    static constexpr qsizetype longestText = INT32_MAX;

    explicit BreakIterator(BreakKind kind);
    BreakIterator(BreakIterator &&) noexcept;
    BreakIterator &operator=(BreakIterator &&) noexcept;
    ~BreakIterator();

    /// Starts at position 0 of a text, which must live, unchanged, until the last next(). What lies behind
    /// longestText is not looked at.
    void setText(QStringView text);

    /// The next boundary after position 0 in UTF-16 code units, ascending; the last one is the text's end;
    /// then, and at once for an empty text, -1. A whole pass takes time proportional to the length.
    qsizetype next();

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};
