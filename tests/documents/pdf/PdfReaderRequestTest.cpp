// SPDX-License-Identifier: MIT
#include "documents/pdf/PdfReaderRequest.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Cause = DocumentError::Cause;

std::optional<PdfReaderRequest> requestFromWords(QByteArrayList words)
{
    std::vector<char *> arguments;
    for (QByteArray &word : words)
        arguments.push_back(word.data());
    return requestFrom(arguments);
}

const PdfReaderRequest request{.processorTime = std::chrono::seconds(70),
    .realTime = std::chrono::seconds(1'400),
    .memory = 1'073'741'824,
    .length = 5'000'000'000};

} // namespace

TEST(PdfReaderRequest, ArrivesAsItWasSent)
{
    EXPECT_EQ(requestFromWords(argumentsOf(request)), request);
}

TEST(PdfReaderRequest, IsAbsentWithOtherArguments)
{
    for (const QByteArrayList &words : {QByteArrayList{}, {"1"}, {"1", "1", "1"}, {"1", "1", "1", "1", "1"},
             {"1", "0", "1", "1"}, {"1", "-1", "1", "1"}, {"1", "1", "1", "1x"}, {"1", "", "1", "1"},
             {"1", "1", "1", "99999999999999999999"}, {"--help"}})
        EXPECT_EQ(requestFromWords(words), std::nullopt) << words.join(' ').constData();
}

TEST(PdfReaderRequest, EveryErrorHasAnExitStatusOfItsOwn)
{
    EXPECT_EQ(errorOfExitStatus(exitStatusFor(std::nullopt)), std::nullopt);
    for (quint32 number = 1; number <= static_cast<quint32>(DocumentError::lastCause); ++number) {
        const auto error = static_cast<DocumentError::Cause>(number);
        EXPECT_EQ(errorOfExitStatus(exitStatusFor(error)), error) << number;
    }
}

TEST(PdfReaderRequest, AnotherExitStatusIsACrashOrAProgramThatDidNotStart)
{
    EXPECT_EQ(errorOfExitStatus(127), Cause::NoPdfReader);
    EXPECT_EQ(errorOfExitStatus(wrongUsageStatus), Cause::NoPdfReader);
    for (const int status : {1, 3, 9, 200, 255})
        EXPECT_EQ(errorOfExitStatus(status), Cause::Damaged) << status;
}
