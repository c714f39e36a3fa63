// SPDX-License-Identifier: MIT
// Selections of a Wayland compositor that shows them to every program, and of owners that do wrong.
#include "tests/platform/pasteboard/WaylandSelectionTest.h"

using Cause = SelectionFailure::Cause;

namespace {

const QString utf8Name = QStringLiteral("text/plain;charset=utf-8");

} // namespace

TEST_F(WaylandSelectionTest, TheRichestFormComesWithThePlainText)
{
    const WaylandOwner owner("primary",
        {{"image/png", "PNG"}, {"text/html", "<b>bold</b>"}, {"text/rtf", "{\\rtf1 rich}"},
            {"TEXT", "caf\xc3\xa9"}});
    const Pasteboard::Forms forms{{QStringLiteral("text/rtf"), "{\\rtf1 rich}"}, {utf8Name, "caf\xc3\xa9"}};
    EXPECT_EQ(formsOf(read()), forms);
    qunsetenv("DISPLAY");
    EXPECT_EQ(formsOf(read()), forms);
}

TEST_F(WaylandSelectionTest, PrimaryAndClipboardAreSeparate)
{
    const WaylandOwner selected("primary", {{"text/plain", "selected"}});
    EXPECT_EQ(failureOf(read(SelectionName::Clipboard)), Cause::NothingSelected);
    const WaylandOwner copied("clipboard", {{"text/plain", "copied"}});
    EXPECT_EQ(textOf(read()), QStringLiteral("selected"));
    EXPECT_EQ(textOf(read(SelectionName::Clipboard)), QStringLiteral("copied"));
}

TEST_F(WaylandSelectionTest, AListOfFilesComesAlone)
{
    const WaylandOwner owner("clipboard", {{"text/uri-list", "file:///tmp/a\r\n"}, {"text/plain", "/tmp/a"}});
    const Outcome files = read(SelectionName::Clipboard, SelectionContent::Files);
    EXPECT_EQ(formsOf(files), (Pasteboard::Forms{{QStringLiteral("text/uri-list"), "file:///tmp/a\r\n"}}));
}

TEST_F(WaylandSelectionTest, ThreeMegabytesArriveComplete)
{
    const QByteArray contents = manyLines(3 << 20);
    const WaylandOwner owner("primary", {{utf8Name.toLatin1(), contents}});
    EXPECT_EQ(formsOf(read()), (Pasteboard::Forms{{utf8Name, contents}}));
}

TEST_F(WaylandSelectionTest, TheCompositorIsAskedBeforeTheXDisplay)
{
    const SelectionOwner ofX("PRIMARY", {{"UTF8_STRING", "of an X client"}});
    EXPECT_EQ(textOf(read()), QStringLiteral("of an X client"));
    const WaylandOwner owner("primary", {{"text/plain", "of the compositor"}});
    EXPECT_EQ(textOf(read()), QStringLiteral("of the compositor"));
}

TEST_F(WaylandSelectionTest, WithoutThatCompositorTheXDisplayIsRead)
{
    const SelectionOwner ofX("PRIMARY", {{"UTF8_STRING", "of an X client"}});
    for (const char *const name : {"", "missing"}) {
        qputenv("WAYLAND_DISPLAY", name);
        EXPECT_EQ(textOf(read()), QStringLiteral("of an X client"));
    }
    qunsetenv("DISPLAY");
    EXPECT_EQ(failureOf(read()), Cause::NoDisplay);
}

TEST_F(WaylandSelectionTest, ACompositorThatHangsTimesOut)
{
    m_compositor->suspend();
    qunsetenv("DISPLAY");
    EXPECT_EQ(failureOf(read()), Cause::NoDisplay);
}

TEST_F(WaylandSelectionTest, AnOwnerThatDoesNotWriteTimesOut)
{
    for (const char *const manner : {"silent", "stops-in-the-middle"}) {
        const WaylandOwner owner("primary", {{"text/plain", "eleven characters and more"}}, manner);
        EXPECT_EQ(failureOf(read()), Cause::NoAnswer) << manner;
    }
}

TEST_F(WaylandSelectionTest, AnOwnerThatExitsProvidesWhatItHasWritten)
{
    const WaylandOwner owner("primary", {{"text/plain", "eleven characters"}}, "exits-in-the-middle");
    EXPECT_EQ(textOf(read()), QStringLiteral("eleven cha"));
}

TEST_F(WaylandSelectionTest, AnOwnerThatWritesForEverIsTooLarge)
{
    const WaylandOwner owner("primary", {{"text/plain", ""}}, "endless");
    EXPECT_EQ(failureOf(read(SelectionName::Primary, SelectionContent::Text, 1 << 20)), Cause::TooLarge);
}

TEST_F(WaylandSelectionTest, ManyTypesHideNoText)
{
    const WaylandOwner owner("primary", {{"text/plain", "text"}}, "many-types");
    EXPECT_EQ(textOf(read()), QStringLiteral("text"));
}
