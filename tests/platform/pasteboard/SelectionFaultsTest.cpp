// SPDX-License-Identifier: MIT
// Selections of slow, silent or hostile owners, and of missing displays.
#include "tests/platform/pasteboard/SelectionTest.h"

#include <QElapsedTimer>

using ::testing::HasSubstr;
using Cause = SelectionFailure::Cause;

class SelectionFaults : public SelectionTest { };

TEST_F(SelectionFaults, AStoppedOwnerTimesOutAfterTwoSeconds)
{
    SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}});
    owner.stop();
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(failureOf(read()), Cause::NoAnswer);
    EXPECT_GE(clock.elapsed(), 1'900);
    owner.goOn();
    EXPECT_EQ(textOf(read()), QStringLiteral("text"));
}

TEST_F(SelectionFaults, AnOwnerThatListsItsFormsAndThenFallsSilentTimesOut)
{
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}}, "silent-about-contents");
    EXPECT_EQ(failureOf(read()), Cause::NoAnswer);
}

TEST_F(SelectionFaults, AnOwnerThatStopsInTheMiddleTimesOutAndNothingIsTaken)
{
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", manyLines(1 << 20)}}, "stops-in-the-middle");
    EXPECT_EQ(failureOf(read()), Cause::NoAnswer);
}

TEST_F(SelectionFaults, ASelectionThatIsTooLargeIsRefusedInEveryTransfer)
{
    const quint64 largest = 1 << 20;
    for (const char *const manner : {"good", "at-once", "announces-4-GB"}) {
        const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", manyLines(2 << 20)}}, manner);
        EXPECT_EQ(failureOf(read(SelectionName::Primary, SelectionContent::Text, largest)), Cause::TooLarge)
            << manner;
    }
    const SelectionOwner two(
        "PRIMARY", {{"text/rtf", manyLines(700'000)}, {"UTF8_STRING", manyLines(700'000)}});
    EXPECT_EQ(failureOf(read(SelectionName::Primary, SelectionContent::Text, largest)), Cause::TooLarge);
}

TEST_F(SelectionFaults, AnOwnerThatDoesNotListItsFormsIsAskedForPlainText)
{
    const SelectionOwner owner("PRIMARY", {{"STRING", "caf\xe9"}}, "without-targets");
    EXPECT_EQ(textOf(read()), QStringLiteral("caf\u00e9"));
    const SelectionOwner other("PRIMARY", {{"image/png", "x"}}, "without-targets");
    EXPECT_EQ(failureOf(read()), Cause::Refused);
}

TEST_F(SelectionFaults, APictureIsNoText)
{
    const SelectionOwner owner("PRIMARY", {{"image/png", "\x89PNG"}});
    EXPECT_EQ(failureOf(read()), Cause::OtherContent);
    EXPECT_EQ(failureOf(read(SelectionName::Primary, SelectionContent::Files)), Cause::OtherContent);
}

TEST_F(SelectionFaults, AnEmptyTextIsNoSelection)
{
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", ""}, {"text/html", ""}});
    EXPECT_EQ(failureOf(read()), Cause::NothingSelected);
}

TEST_F(SelectionFaults, ForeignEventsAndInvalidNamesAreIgnored)
{
    for (const char *const manner : {"sends-other-events-first", "tells-atoms-that-are-none"}) {
        const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "text"}}, manner);
        EXPECT_EQ(textOf(read()), QStringLiteral("text")) << manner;
    }
}

TEST_F(SelectionFaults, AMissingDisplayIsReported)
{
    const QByteArray display = qgetenv("DISPLAY");
    for (const char *name : {"", ":47999", "nonsense"}) {
        qputenv("DISPLAY", name);
        EXPECT_EQ(failureOf(read()), Cause::NoDisplay) << name;
    }
    qputenv("DISPLAY", display);
}

TEST_F(SelectionFaults, EveryCauseHasAnIndividualText)
{
    QStringList texts;
    for (const SelectionName name : {SelectionName::Primary, SelectionName::Clipboard}) {
        for (const Cause cause :
            {Cause::NoDisplay, Cause::NothingSelected, Cause::NothingShown, Cause::OtherContent,
                Cause::Refused, Cause::NoAnswer, Cause::TooLarge, Cause::NotEnoughMemory})
            texts.append(causeText({cause, name, SelectionContent::Text}));
    }
    EXPECT_EQ(texts.removeDuplicates(), 0);
    EXPECT_FALSE(texts.contains(QString()));
}
