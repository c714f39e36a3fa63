// SPDX-License-Identifier: MIT
// OtherProgram is another program with a window, xev(1), which takes the focus from the test's windows.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/harness/ChildProcess.h"
#include "tests/harness/Display.h"

class OtherProgram {
public:
    /// Returns once its window exists.
    OtherProgram()
    {
        m_process.withVariable("DISPLAY", TestDisplay::start().toLatin1());
        m_process.start({"-name", name, "-geometry", "200x100+900+100", "-event", "focus"});
        TestDisplay::xdotool(search());
    }

    /// Makes the window manager give it the focus, like a click on its title bar, and returns once it has it:
    /// before that, Alt+Tab would go the other way.
    void activate() const
    {
        TestDisplay::xdotool(
            search() + QStringList{QStringLiteral("windowactivate"), QStringLiteral("--sync")});
    }

private:
    static constexpr auto name = "another-program";

    [[nodiscard]] static QStringList search()
    {
        return {QStringLiteral("search"), QStringLiteral("--sync"), QStringLiteral("--onlyvisible"),
            QStringLiteral("--name"), QString::fromLatin1(name)};
    }

    ChildProcess m_process{QStringLiteral("xev")};
};
