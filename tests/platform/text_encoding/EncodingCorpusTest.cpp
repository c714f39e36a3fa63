// SPDX-License-Identifier: MIT
#include "documents/PlainTextReader.h"

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/text_encoding/EncodingCorpus.h"

namespace {

struct Share {
    int correct = 0;
    int all = 0;

    [[nodiscard]] double percent() const { return 100.0 * correct / all; }
};

Share measureCorrectShare(SampleLength length)
{
    Share share;
    for (const EncodedSample &sample : encodedSamples(length)) {
        const PlainText read = readPlainText(sample.bytes).value();
        ++share.all;
        if (read.text == sample.text)
            ++share.correct;
        else
            std::printf("%s in %s read as %s: %s\n", sample.language, sample.encoding.constData(),
                read.encoding.constData(), qPrintable(read.text.simplified().left(60)));
    }
    std::printf("%d of %d, %.1f %%\n", share.correct, share.all, share.percent());
    return share;
}

} // namespace

// A dozen letters, one or two of them beyond ASCII.
TEST(EncodingCorpus, MostBeginningsOfSentencesAreReadCorrectly)
{
    EXPECT_GE(measureCorrectShare(SampleLength::Short).percent(), 89);
}

TEST(EncodingCorpus, NearlyEverySentenceIsReadCorrectly)
{
    EXPECT_GE(measureCorrectShare(SampleLength::Sentence).percent(), 93);
}

TEST(EncodingCorpus, EveryLongTextIsReadCorrectly)
{
    const Share share = measureCorrectShare(SampleLength::Long);
    EXPECT_EQ(share.correct, share.all);
}
