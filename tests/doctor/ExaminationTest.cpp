// SPDX-License-Identifier: MIT
#include "doctor/Examination.h"

#include "command/DoctorReport.h"

#include <QDir>

#include <gmock/gmock.h>

#include <future>

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

std::promise<void> *released = nullptr;

Finding hang()
{
    released->get_future().wait();
    return goodFinding(QStringLiteral("late"));
}

Finding answer()
{
    return goodFinding(QStringLiteral("answers"));
}

Finding limit()
{
    return limitedFinding(QStringLiteral("limited"), QStringLiteral("do"));
}

Finding runOutOfMemory()
{
    throw std::bad_alloc();
}

std::vector<std::string> resultsOf(const std::vector<Check> &checks, Severity &worst)
{
    std::vector<std::string> results;
    worst = examine(checks, [&results](const Check &check, const Finding &finding) {
        results.push_back(check.name + std::string(" ") + nameOf(finding.severity));
    });
    return results;
}

} // namespace

TEST(Examination, ACheckThatHangsCostsItsTimeoutAndTheOthersAreReported)
{
    // Never destroyed: the thread of the check may still be in it.
    released = new std::promise<void>;
    Severity worst{};
    EXPECT_THAT(resultsOf({{"first", {}, answer}, {"second", {}, hang, std::chrono::milliseconds(1)},
                              {"third", {}, limit}},
                    worst),
        ElementsAre("first ok", "second broken", "third limited"));
    EXPECT_EQ(worst, Severity::Broken);
    released->set_value();
}

TEST(Examination, WhatNeedsABrokenCheckIsLeftOut)
{
    Severity worst{};
    EXPECT_THAT(resultsOf({{"bus", {}, runOutOfMemory}, {"service", {"bus"}, answer},
                              {"window", {"service"}, answer}, {"font", {}, answer}},
                    worst),
        ElementsAre("bus broken", "service note", "window note", "font ok"));
    EXPECT_EQ(worst, Severity::Broken);
}

TEST(Examination, TheWorstSeverityDecidesTheExitStatus)
{
    Severity worst{};
    resultsOf({{"first", {}, answer}, {"second", {}, limit}, {"third", {}, answer}}, worst);
    EXPECT_EQ(worst, Severity::Limited);
    EXPECT_EQ(exitStatusOf(Severity::Good), 0);
    EXPECT_EQ(exitStatusOf(Severity::Note), 0);
    EXPECT_EQ(exitStatusOf(Severity::Limited), 1);
    EXPECT_EQ(exitStatusOf(Severity::Broken), 3);
}

TEST(DoctorReport, LinesAreNarrowAndBeginWithTheSeverity)
{
    const QString sentence = QStringLiteral("The quick brown fox jumps over the lazy dog. ");
    const QByteArray text =
        textOfFinding({"fox", {}, answer}, limitedFinding(sentence.repeated(3), sentence));
    const QByteArrayList lines = text.chopped(1).split('\n');
    ASSERT_EQ(lines.size(), 3) << text.constData();
    EXPECT_TRUE(lines[0].startsWith("limited  fox: The quick"));
    EXPECT_EQ(lines[2], QByteArray("         The quick brown fox jumps over the lazy dog."));
    for (const QByteArray &line : lines)
        EXPECT_LE(line.size(), 80);
}

TEST(DoctorReport, HidesTheHomeFolderAndControlCharacters)
{
    const Finding finding = goodFinding(QDir::homePath() + QStringLiteral("/a b\x1B[2J"));
    EXPECT_EQ(textOfFinding({"name", {}, answer}, finding), QByteArray("ok       name: ~/a b\\x1b[2J\n"));
    EXPECT_THAT(jsonOfFinding({"name", {}, answer}, finding).toStdString(), HasSubstr("\"~/a b\\\\x1b[2J\""));
}
