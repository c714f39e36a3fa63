// SPDX-License-Identifier: MIT
#include "counting_service/worker/CountMemory.h"

#include <gtest/gtest.h>

namespace {

constexpr QBYWordCounterStats counts{1, 2, 3, 4, 5, 6, 7, 8};

WorkerRequest requestFor(QByteArrayView document)
{
    WorkerRequest request;
    request.length = static_cast<quint64>(document.size());
    request.rules.localeName = "en_US";
    return request;
}

} // namespace

TEST(CountMemory, RecognisesADocumentThatComesAgain)
{
    CountMemory memory;
    WorkerRequest request = requestFor("text");
    EXPECT_FALSE(memory.countsOf(CountMemory::nameOf(request, "text")));
    memory.remember(CountMemory::nameOf(request, "text"), counts);
    request.number = 17; // each request has another one
    EXPECT_EQ(memory.countsOf(CountMemory::nameOf(request, "text")), counts);
}

TEST(CountMemory, NeedsNoNameForADocumentOfANewLength)
{
    CountMemory memory;
    EXPECT_FALSE(memory.mayRemember(requestFor("text")));
    memory.remember(CountMemory::nameOf(requestFor("text"), "text"), counts);
    EXPECT_TRUE(memory.mayRemember(requestFor("Text")));
    EXPECT_FALSE(memory.mayRemember(requestFor("a text")));
    EXPECT_FALSE(memory.mayRemember(requestFor("")));
}

TEST(CountMemory, DoesNotConfuseDocuments)
{
    const WorkerRequest request = requestFor("text");
    CountMemory memory;
    memory.remember(CountMemory::nameOf(request, "text"), counts);
    EXPECT_FALSE(memory.countsOf(CountMemory::nameOf(request, "Text")));
    EXPECT_FALSE(memory.countsOf(CountMemory::nameOf(requestFor("text "), "text ")));
    EXPECT_FALSE(memory.countsOf(CountMemory::nameOf(requestFor(""), "")));
}

TEST(CountMemory, DoesNotConfuseRules)
{
    const WorkerRequest request = requestFor("text");
    const QByteArray name = CountMemory::nameOf(request, "text");
    const auto nameWith = [&](const auto &change) {
        WorkerRequest changed = request;
        change(changed);
        return CountMemory::nameOf(changed, "text");
    };
    EXPECT_NE(nameWith([](WorkerRequest &changed) { changed.kind = DocumentKind::WordDocument; }), name);
    EXPECT_NE(nameWith([](WorkerRequest &changed) { changed.rules.localeName = "en_GB"; }), name);
    EXPECT_NE(nameWith([](WorkerRequest &changed) { changed.rules.minimumSentencesOfParagraph = 2; }), name);
    EXPECT_NE(
        nameWith([](WorkerRequest &changed) { changed.rules.sentencesNeedTerminalPunctuation ^= true; }),
        name);
    EXPECT_NE(nameWith([](WorkerRequest &changed) { changed.rules.page.scale += 1; }), name);
    EXPECT_NE(nameWith([](WorkerRequest &changed) { changed.rules.page.columnBefore = 400; }), name);
}

TEST(CountMemory, ForgetsTheDocumentThatWasNotUsedForTheLongestTime)
{
    CountMemory memory;
    const auto nameOf = [](qsizetype number) { return QByteArray::number(number); };
    memory.remember(nameOf(0), counts);
    for (qsizetype number = 1; number <= CountMemory::capacity; ++number) {
        EXPECT_TRUE(memory.countsOf(nameOf(0)));
        memory.remember(nameOf(number), counts);
    }
    EXPECT_TRUE(memory.countsOf(nameOf(0))) << "it was used all the time";
    EXPECT_FALSE(memory.countsOf(nameOf(1)));
    EXPECT_TRUE(memory.countsOf(nameOf(2)));
}
