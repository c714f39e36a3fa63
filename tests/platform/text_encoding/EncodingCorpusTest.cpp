// SPDX-License-Identifier: MIT
#include "documents/PlainTextReader.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_encoding/EncodingCorpus.h"

namespace {

struct Share {
    int right = 0;
    int all = 0;

    [[nodiscard]] double percent() const { return 100.0 * right / all; }
};

Share shareReadRightly(SampleLength length)
{
    Share share;
    for (const EncodedSample &sample : encodedSamples(length)) {
        const PlainText read = readPlainText(sample.bytes).value();
        ++share.all;
        if (read.text == sample.text)
            ++share.right;
        else
            std::printf("%s in %s read as %s: %s\n", sample.language, sample.encoding.constData(),
                read.encoding.constData(), qPrintable(read.text.simplified().left(60)));
    }
    std::printf("%d of %d, %.1f %%\n", share.right, share.all, share.percent());
    return share;
}

} // namespace

// A dozen letters, of which one or two are beyond ASCII.
TEST(EncodingCorpus, MostBeginningsOfSentencesAreReadRightly)
{
    EXPECT_GE(shareReadRightly(SampleLength::Short).percent(), 89);
}

TEST(EncodingCorpus, NearlyEverySentenceIsReadRightly)
{
    EXPECT_GE(shareReadRightly(SampleLength::Sentence).percent(), 93);
}

TEST(EncodingCorpus, EveryLongTextIsReadRightly)
{
    const Share share = shareReadRightly(SampleLength::Long);
    EXPECT_EQ(share.right, share.all);
}
