// SPDX-License-Identifier: MIT
// BidiRuns finds the stretches of a paragraph that are written from right to left (UAX #9).
// Thread: one at a time.  Owner: the caller; to be reused for the next paragraph, since it is expensive to
// make.
#pragma once

#include <QStringView>

#include <memory>

class BidiRuns {
public:
    enum class Base { FirstStrongCharacter, LeftToRight, RightToLeft };

    /// A stretch in one direction.
    struct Run {
        qsizetype end; ///< UTF-16 code units from the start of the paragraph
        bool isRightToLeft;
    };

    BidiRuns();
    BidiRuns(BidiRuns &&) noexcept;
    BidiRuns &operator=(BidiRuns &&) noexcept;
    ~BidiRuns();

    /// Takes time proportional to the paragraph; a text without right-to-left characters is only scanned.
    /// text: without its separator; must live until the last runAt().
    void setParagraph(QStringView text, Base base);

    [[nodiscard]] bool isParagraphRightToLeft() const;

    /// The rest of the run that contains a position (0 to the length - 1), in time proportional to it.
    [[nodiscard]] Run runAt(qsizetype position) const;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};
