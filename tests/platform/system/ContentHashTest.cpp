// SPDX-License-Identifier: MIT
#include "platform/system/ContentHash.h"

#include "tests/harness/QuillbayTest.h"

#include <unordered_set>

namespace {

TEST(ContentHash, EqualBytesHaveEqualHashesWhereverTheyLie)
{
    const QByteArray bytes = QByteArray("0123456789").repeated(100);
    const QByteArray shifted = ' ' + bytes;
    EXPECT_EQ(contentHash(bytes), contentHash(QByteArrayView(shifted).sliced(1)));
}

TEST(ContentHash, DiffersForEveryLengthAndForEveryChangedBit)
{
    std::unordered_set<ContentHash> hashes;
    size_t contents = 0;
    for (const qsizetype length : {0, 1, 2, 3, 4, 8, 9, 16, 17, 128, 129, 240, 241, 1024, 1025, 5000}) {
        QByteArray bytes(length, '\0');
        hashes.insert(contentHash(bytes));
        ++contents;
        for (qsizetype bit = 0; bit < 8 * length; ++bit, ++contents) {
            const auto mask = static_cast<char>(1 << bit % 8);
            bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ mask);
            hashes.insert(contentHash(bytes));
            bytes[bit / 8] = static_cast<char>(bytes[bit / 8] ^ mask);
        }
    }
    EXPECT_EQ(hashes.size(), contents);
}

TEST(ContentHash, AChainDependsOnWhereEachPieceEnds)
{
    const ContentHash chain = contentHash("b", contentHash("ca"));
    EXPECT_EQ(chain, contentHash("b", contentHash("ca")));
    EXPECT_NE(chain, contentHash("ab", contentHash("c")));
    EXPECT_NE(chain, contentHash("cab"));
}

} // namespace
