// SPDX-License-Identifier: MIT
#include "documents/html/ParserMemory.h"

#include "tests/harness/QuillbayTest.h"

namespace {

constexpr size_t megabyte = 1024UL * 1024;

/// Megabytes that can be allocated before a refusal.
size_t megabytesOf(ParserMemory &memory)
{
    size_t count = 0;
    while (count < 1000 && memory.allocate(megabyte))
        ++count;
    return count;
}

} // namespace

TEST(ParserMemory, IsLimitedByTheLengthOfThePage)
{
    ParserMemory ofNoPage(0);
    const size_t base = megabytesOf(ofNoPage);
    EXPECT_GE(base, 60U);
    EXPECT_LE(base, 64U);
    EXPECT_EQ(ofNoPage.refusal(), DocumentError::Cause::TooComplex);

    ParserMemory ofMegabyte(megabyte);
    const size_t more = megabytesOf(ofMegabyte);
    EXPECT_GE(more, 240U);
    EXPECT_LE(more, 64U + 192U);
}

TEST(ParserMemory, ReleasedMemoryIsReused)
{
    ParserMemory memory(0);
    for (int i = 0; i < 1000; ++i) {
        void *block = memory.allocate(megabyte);
        ASSERT_NE(block, nullptr);
        memory.release(block);
    }
    memory.release(nullptr);
    EXPECT_EQ(memory.refusal(), std::nullopt);
}
