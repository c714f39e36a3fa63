// SPDX-License-Identifier: MIT
// BidiRuns tells which stretches of a paragraph are written from right to left (UAX #9).
// Thread: one at a time.  Owner: whoever makes it; kept for the next paragraph, since its memory is dear.
#pragma once

#include <QStringView>

#include <memory>

class BidiRuns {
public:
    enum class Base { FirstStrongCharacter, LeftToRight, RightToLeft };

    /// A stretch in one direction, in text order.
    struct Run {
        qsizetype end; ///< UTF-16 code units from the start of the paragraph
        bool isRightToLeft;
    };

    BidiRuns();
    BidiRuns(BidiRuns &&) noexcept;
    BidiRuns &operator=(BidiRuns &&) noexcept;
    ~BidiRuns();

    /// Takes time in proportion to the paragraph; one that can hold nothing written from right to left is
    /// only looked through. The text, without its separator, must live until the last runAt().
    void setParagraph(QStringView text, Base base);

    [[nodiscard]] bool isParagraphRightToLeft() const;

    /// The rest of the run that holds a position (0 to the length - 1), found in time proportional to it.
    [[nodiscard]] Run runAt(qsizetype position) const;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};
