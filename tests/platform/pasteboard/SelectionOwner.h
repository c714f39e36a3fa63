// SPDX-License-Identifier: MIT
// SelectionOwner runs selection_owner.cpp or wayland_owner.cpp, an application that has selected something,
// in a process of its own.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <csignal>

class SelectionOwner {
public:
    /// By target.
    using Forms = std::vector<std::pair<QByteArray, QByteArray>>;
    /// The bytes of a form that is offered and then refused.
    static QByteArray refused()
    {
        return "\xff"
               "refused";
    }

    /// selection: the name of an atom, or for wayland_owner "primary" or "clipboard".
    SelectionOwner(const QByteArray &selection, const Forms &forms, const QByteArray &manner = "good",
        const QString &program = QStringLiteral("selection_owner"))
        : m_process(testProgram(program))
    {
        QByteArrayList words{selection, manner};
        for (const auto &[target, bytes] : forms)
            words += {target, bytes == refused() ? QByteArray("-") : fileWith(bytes)};
        m_process.start(words);
        EXPECT_EQ(m_process.readLine(), QByteArray("owned"));
    }
    SelectionOwner(const SelectionOwner &) = delete;
    SelectionOwner &operator=(const SelectionOwner &) = delete;
    ~SelectionOwner() { goOn(); }

    void waitForExit() { m_process.finish(); }
    void stop() { signal(SIGSTOP); }
    void goOn() { signal(SIGCONT); }

private:
    void signal(int number)
    {
        const auto process = static_cast<pid_t>(m_process.processIdentifier());
        if (process > 0) // 0 would stop this test itself
            ::kill(process, number);
    }

    static QByteArray fileWith(const QByteArray &bytes)
    {
        static int number = 0;
        QFile file(TestHome::instance().root() + QStringLiteral("/form-%1").arg(++number));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return QFile::encodeName(file.fileName());
    }

    ChildProcess m_process;
};
