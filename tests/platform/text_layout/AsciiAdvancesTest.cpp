// SPDX-License-Identifier: MIT
#include "platform/text_layout/AsciiAdvances.h"

#include "platform/text_layout/PairAdvances.h"
#include "tests/harness/EveryInstructionSet.h"
#include "tests/harness/QuillbayTest.h"

#include <limits>
#include <vector>

namespace {

class AsciiAdvancesOfEveryTarget : public EveryInstructionSet {
protected:
    AsciiAdvancesOfEveryTarget()
    {
        for (size_t first = 0; first < 256; ++first) {
            for (size_t second = 0; second < 256; ++second)
                m_advances[PairAdvances::indexOf(first, second)] = advanceOf(first, second);
        }
    }

    static int advanceOf(size_t first, size_t second)
    {
        return static_cast<int>(first * 31 + second * 17) % 1000;
    }

    /// Checks the sum, and returns how many characters were added. Room for all of them, if not given.
    qsizetype addedOf(const QString &text, int room = std::numeric_limits<int>::max())
    {
        int sum = 7;
        const qsizetype added = addAsciiAdvances(
            reinterpret_cast<const char16_t *>(text.utf16()), text.size() - 1, m_advances.data(), room, sum);
        int expected = 7;
        for (qsizetype i = 0; i < added; ++i)
            expected += advanceOf(text[i].unicode(), text[i + 1].unicode());
        EXPECT_EQ(sum, expected);
        EXPECT_LE(sum, room);
        return added;
    }

    std::vector<int> m_advances = std::vector<int>(size_t{256} * 256);
};

} // namespace

TEST_P(AsciiAdvancesOfEveryTarget, AreAddedInWholeBlocks)
{
    constexpr qsizetype longestBlock = 64;
    const QString text = QStringLiteral("The quick brown fox jumps over the lazy dog; ").repeated(9);
    for (qsizetype length = 1; length < text.size(); ++length) {
        const qsizetype added = addedOf(text.first(length));
        EXPECT_LE(added, length - 1);
        if (added > 0) {
            EXPECT_GT(added, length - 1 - longestBlock);
        }
    }
}

TEST_P(AsciiAdvancesOfEveryTarget, StopBeforeOtherCharacters)
{
    const QString text = QStringLiteral("abcdefgh").repeated(32);
    for (const char16_t other : {u'\t', u'\0', u'\u0080', u'\u00E9', u'\u4E2D', u'\uFFFF'}) {
        for (const qsizetype at : {0, 1, 63, 64, 100, 255}) {
            QString changed = text;
            changed[at] = QChar(other);
            EXPECT_LE(addedOf(changed), at) << static_cast<int>(other);
        }
    }
}

TEST_P(AsciiAdvancesOfEveryTarget, StopBeforeTheyExceedTheRoom)
{
    const QString text = QStringLiteral("office ").repeated(40);
    const qsizetype all = addedOf(text);
    for (int room = 7; room < 100'000; room += 997)
        EXPECT_LE(addedOf(text, room), all);
}

TEST_P(AsciiAdvancesOfEveryTarget, StopAtAPairWithoutAnAdvance)
{
    const QString text = QStringLiteral("letters and ").repeated(8) + QStringLiteral("fi")
        + QStringLiteral(" more letters").repeated(8);
    constexpr int maxRoom = PairAdvances::limit / 2;
    for (const int value : {PairAdvances::unknown, PairAdvances::joined, PairAdvances::unsupported}) {
        m_advances[PairAdvances::indexOf('f', 'i')] = value;
        int sum = 0;
        const auto *const units = reinterpret_cast<const char16_t *>(text.utf16());
        EXPECT_LE(addAsciiAdvances(units, text.size() - 1, m_advances.data(), maxRoom, sum),
            text.indexOf(QStringLiteral("fi")));
        EXPECT_LE(sum, maxRoom);
    }
}

INSTANTIATE_TEST_SUITE_P(
    AllTargets, AsciiAdvancesOfEveryTarget, EveryInstructionSet::values(), EveryInstructionSet::name);
