// SPDX-License-Identifier: MIT
#include "documents/pdf/PdfReaderOrder.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::optional<PdfReaderOrder> orderFromWords(QByteArrayList words)
{
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    return orderFrom(arguments);
}

const PdfReaderOrder order{.processorTime = std::chrono::seconds(70),
    .realTime = std::chrono::seconds(1'400),
    .memory = 1'073'741'824,
    .length = 5'000'000'000};

} // namespace

TEST(PdfReaderOrder, ArrivesAsItWasGiven)
{
    EXPECT_EQ(orderFromWords(argumentsOf(order)), order);
}

TEST(PdfReaderOrder, IsNoneWithOtherArguments)
{
    for (const QByteArrayList &words : {QByteArrayList{}, {"1"}, {"1", "1", "1"}, {"1", "1", "1", "1", "1"},
             {"1", "0", "1", "1"}, {"1", "-1", "1", "1"}, {"1", "1", "1", "1x"}, {"1", "", "1", "1"},
             {"1", "1", "1", "99999999999999999999"}, {"--help"}})
        EXPECT_EQ(orderFromWords(words), std::nullopt) << words.join(' ').constData();
}

TEST(PdfReaderOrder, EveryErrorHasAnExitStatusOfItsOwn)
{
    EXPECT_EQ(errorOfExitStatus(exitStatusFor(std::nullopt)), std::nullopt);
    for (const PdfError error : {PdfError::NotPdf, PdfError::Encrypted, PdfError::Damaged, PdfError::NoPages,
             PdfError::NoText, PdfError::UnmappedText, PdfError::TooIntricate, PdfError::NotReadHere,
             PdfError::NoReader, PdfError::NotEnoughMemory})
        EXPECT_EQ(errorOfExitStatus(exitStatusFor(error)), error) << static_cast<int>(error);
}

TEST(PdfReaderOrder, AnotherExitStatusIsACrashOrTellsThatTheProgramDidNotStart)
{
    EXPECT_EQ(errorOfExitStatus(127), PdfError::NoReader);
    EXPECT_EQ(errorOfExitStatus(wrongUsageStatus), PdfError::NoReader);
    for (const int status : {1, 3, 9, 30, 255})
        EXPECT_EQ(errorOfExitStatus(status), PdfError::Damaged) << status;
}
