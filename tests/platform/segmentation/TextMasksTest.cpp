// SPDX-License-Identifier: MIT
#include "platform/segmentation/TextMasks.h"

#include "platform/segmentation/Segmenter.h"
#include "tests/harness/EveryInstructionSet.h"
#include "tests/harness/QuillbayTest.h"

#include <random>

namespace {

class TextMasksOfEveryTarget : public EveryInstructionSet {
protected:
    void expectClasses(QStringView text, qsizetype start, qsizetype length)
    {
        m_masks.read(text, start, length);
        ASSERT_EQ(m_masks.length(), length);
        for (qsizetype i = 0; i < m_masks.wordCount() * TextMasks::bitsPerWord; ++i) {
            const quint32 flags = i < length ? classesAt(text.utf16(), text.size(), start + i).flags() : 0;
            for (int value = 0; value < characterClassCount; ++value) {
                ASSERT_EQ(m_masks.test(static_cast<CharacterClass>(value), i), flags >> value & 1)
                    << "class " << value << ", unit " << i;
            }
        }
    }

    TextMasks m_masks;
};

} // namespace

TEST_P(TextMasksOfEveryTarget, HaveTheClassesOfEveryCodeUnit)
{
    QString all;
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
        all += QChar(static_cast<char16_t>(unit));
    for (qsizetype start = 0; start < all.size(); start += TextMasks::maxLength)
        expectClasses(all, start, std::min(TextMasks::maxLength, all.size() - start));
}

TEST_P(TextMasksOfEveryTarget, EndWithTheTextAtEveryLength)
{
    const QString text = QStringLiteral("\u0434Mr. X's a_b, 3.5?\t\U0001D7CE\u05D0").repeated(12);
    for (qsizetype length = 0; length < 200; ++length)
        expectClasses(text, length % 7, length);
}

INSTANTIATE_TEST_SUITE_P(
    AllTargets, TextMasksOfEveryTarget, EveryInstructionSet::values(), EveryInstructionSet::name);

TEST(TextMasks, TruncatedMasksAreThoseOfAShorterText)
{
    const QString text = QStringLiteral("Words, and words. ").repeated(20);
    TextMasks cut;
    cut.read(text, 0, text.size());
    cut.truncate(100);
    TextMasks shorter;
    shorter.read(text, 0, 100);
    for (qsizetype index = 0; index < shorter.wordCount(); ++index)
        EXPECT_EQ(cut.word(CharacterClass::Letter, index), shorter.word(CharacterClass::Letter, index));
}

TEST(TextMasks, RangesAndSearchesKeepToTheirEnds)
{
    EXPECT_EQ(TextMasks::rangeMask(0, 0, 64), ~quint64{0});
    EXPECT_EQ(TextMasks::rangeMask(1, 0, 66), quint64{3});
    EXPECT_EQ(TextMasks::rangeMask(1, 65, 65), quint64{0});
    EXPECT_EQ(TextMasks::rangeMask(2, 0, 66), quint64{0});
    const auto every = [](qsizetype) { return ~quint64{0}; };
    const auto none = [](qsizetype) { return quint64{0}; };
    EXPECT_EQ(TextMasks::first(70, 130, every), 70);
    EXPECT_EQ(TextMasks::first(70, 130, none), 130);
    EXPECT_EQ(TextMasks::last(0, 130, every), 129);
    EXPECT_EQ(TextMasks::last(0, 0, every), -1);
    EXPECT_EQ(TextMasks::last(5, 130, none), -1);
    for (const quint64 bits : {quint64{0}, quint64{1}, ~quint64{0}, quint64{0x8000'0000'F0F0'1234}})
        EXPECT_EQ(TextMasks::countBits(bits), static_cast<quint64>(std::popcount(bits)));
}
