// SPDX-License-Identifier: MIT
// Selections that a Wayland compositor keeps from X clients. A script stands in for wl-paste(1), as the
// compositors that have its protocol start neither without a seat nor for root.
#include "tests/platform/pasteboard/SelectionTest.h"

using Cause = SelectionFailure::Cause;

namespace {

class WaylandPaste : public SelectionTest {
protected:
    WaylandPaste()
    {
        qputenv("WAYLAND_DISPLAY", "wayland-0");
        qputenv("PATH", QFile::encodeName(world().root() + QStringLiteral("/files/bin")));
    }

    /// cases: its behaviour for its arguments, in the syntax of sh(1)'s case command.
    static void installProgram(const QByteArray &cases)
    {
        const QString path = writeFile(QStringLiteral("bin/wl-paste"),
            "#!/bin/sh\nPATH=/usr/bin:/bin\ncase \"$*\" in\n" + cases + "*) exit 1 ;;\nesac\n");
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
};

} // namespace

TEST_F(WaylandPaste, ProvidesTheSameFormsAsAnXDisplay)
{
    installProgram("'--primary --list-types') printf 'image/png\\ntext/html\\nTEXT\\n' ;;\n"
                   "'--primary --no-newline --type text/html') printf '<b>page' ;;\n"
                   "'--primary --no-newline --type TEXT') printf 'caf\\303\\251' ;;\n");
    const Pasteboard::Forms forms{{QStringLiteral("text/html"), "<b>page"},
        {QStringLiteral("text/plain;charset=utf-8"), "caf\xc3\xa9"}};
    EXPECT_EQ(formsOf(read()), forms);
    qunsetenv("DISPLAY");
    EXPECT_EQ(formsOf(read()), forms);
    EXPECT_EQ(failureOf(read(SelectionName::Clipboard)), Cause::NothingSelected);
}

TEST_F(WaylandPaste, IsNotRunIfAnXClientHasTheSelection)
{
    installProgram("*) printf 'text/plain' ;;\n");
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", "of an X client"}});
    EXPECT_EQ(textOf(read()), QStringLiteral("of an X client"));
}

TEST_F(WaylandPaste, IsNotRunWithoutACompositor)
{
    installProgram("*) printf 'text/plain' ;;\n");
    qunsetenv("WAYLAND_DISPLAY");
    EXPECT_EQ(failureOf(read()), Cause::NothingSelected);
}

TEST_F(WaylandPaste, NotInstalledLeavesTheSelectionUnknown)
{
    EXPECT_EQ(failureOf(read()), Cause::NothingShown);
    const SelectionOwner owner("PRIMARY", {{"UTF8_STRING", ""}});
    EXPECT_EQ(failureOf(read()), Cause::NothingSelected);
}

TEST_F(WaylandPaste, WithoutAnAnswerTimesOut)
{
    installProgram("*--list-types) exec sleep 1000 ;;\n");
    EXPECT_EQ(failureOf(read()), Cause::NoAnswer);
    installProgram("*--list-types) printf 'text/plain' ;;\n*) printf 'some'; exec sleep 1000 ;;\n");
    EXPECT_EQ(failureOf(read()), Cause::NoAnswer);
}

TEST_F(WaylandPaste, WithTooMuchOutputIsKilled)
{
    installProgram("*--list-types) printf 'text/plain' ;;\n*) exec yes ;;\n");
    EXPECT_EQ(failureOf(read(SelectionName::Primary, SelectionContent::Text, 1 << 20)), Cause::TooLarge);
}
