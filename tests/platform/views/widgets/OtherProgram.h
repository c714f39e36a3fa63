// SPDX-License-Identifier: MIT
// OtherProgram is a program with a window that is none of ours, to take the keyboard from ours: xev(1).
// Thread: main.  Owner: the test.
#pragma once

#include "tests/harness/ChildProcess.h"
#include "tests/harness/Display.h"

class OtherProgram {
public:
    /// Until its window is there.
    OtherProgram()
    {
        m_process.withVariable("DISPLAY", TestDisplay::start().toLatin1());
        m_process.start({"-name", name, "-geometry", "200x100+900+100", "-event", "focus"});
        TestDisplay::xdotool(search());
    }

    /// Has the window manager give it the keyboard, as a click on its title bar does.
    void activate() const { TestDisplay::xdotool(search() + QStringList{QStringLiteral("windowactivate")}); }

private:
    static constexpr auto name = "another-program";

    [[nodiscard]] static QStringList search()
    {
        return {QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
            QStringLiteral("--name"), QString::fromLatin1(name)};
    }

    ChildProcess m_process{QStringLiteral("xev")};
};
