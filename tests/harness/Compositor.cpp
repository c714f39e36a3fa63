// SPDX-License-Identifier: MIT
#include "tests/harness/Compositor.h"

#include "tests/harness/TestHome.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <grp.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <csignal>

namespace {

constexpr int timeout = 20'000; // milliseconds
constexpr uid_t userOfCompositor = 65534; // nobody

const QString sway = QStringLiteral("sway");
const QString wtype = QStringLiteral("wtype");

/// It refuses to run as root.
void becomeOtherUser()
{
    if (::geteuid() == 0
        && (::setgroups(0, nullptr) != 0 || ::setgid(userOfCompositor) != 0
            || ::setuid(userOfCompositor) != 0))
        ::_exit(126);
}

/// Where the compositor has its sockets.
QString makeRuntimeFolder()
{
    const QString folder = TestHome::instance().root() + QStringLiteral("/compositor");
    QDir().mkpath(folder);
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    if (::geteuid() == 0) {
        EXPECT_EQ(::chown(QFile::encodeName(folder).constData(), userOfCompositor, userOfCompositor), 0);
    }
    return folder;
}

/// Sway runs the command once it accepts connections.
QString writeConfiguration(const QString &folder)
{
    QFile file(folder + QStringLiteral("/configuration"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("xwayland disable\nexec echo $WAYLAND_DISPLAY\n");
    return file.fileName();
}

} // namespace

bool TestCompositor::isInstalled()
{
    return !QStandardPaths::findExecutable(sway).isEmpty()
        && !QStandardPaths::findExecutable(wtype).isEmpty();
}

TestCompositor::TestCompositor()
{
    const QString folder = makeRuntimeFolder();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder);
    environment.insert(QStringLiteral("WLR_BACKENDS"), QStringLiteral("headless"));
    environment.insert(QStringLiteral("WLR_LIBINPUT_NO_DEVICES"), QStringLiteral("1"));
    environment.insert(QStringLiteral("WLR_RENDERER"), QStringLiteral("pixman"));
    m_compositor.setProcessEnvironment(environment);
    m_compositor.setStandardErrorFile(QProcess::nullDevice());
    m_compositor.setChildProcessModifier([] {
        becomeOtherUser();
        ::prctl(PR_SET_PDEATHSIG, SIGKILL); // the compositor ends with a test that crashes
    });
    m_compositor.start(sway, {QStringLiteral("--config"), writeConfiguration(folder)});
    while (!m_compositor.canReadLine()) {
        if (!m_compositor.waitForReadyRead(timeout)) {
            ADD_FAILURE() << "the private compositor did not start";
            return;
        }
    }
    qputenv("WAYLAND_DISPLAY", QFile::encodeName(folder) + '/' + m_compositor.readLine().trimmed());
    // Windows get the focus only while there is a keyboard. This one sleeps.
    m_keyboard.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    m_keyboard.start(wtype, {QStringLiteral("-s"), QStringLiteral("3600000")});
    EXPECT_TRUE(m_keyboard.waitForStarted(timeout));
}

TestCompositor::~TestCompositor()
{
    resume();
    for (QProcess *const process : {&m_keyboard, &m_compositor}) {
        process->kill();
        process->waitForFinished(timeout);
    }
}

void TestCompositor::pressKey()
{
    EXPECT_EQ(QProcess::execute(wtype, {QStringLiteral("a")}), 0);
}

void TestCompositor::suspend() const
{
    ASSERT_GT(m_compositor.processId(), 0);
    ::kill(static_cast<pid_t>(m_compositor.processId()), SIGSTOP);
}

void TestCompositor::resume() const
{
    if (m_compositor.processId() > 0)
        ::kill(static_cast<pid_t>(m_compositor.processId()), SIGCONT);
}
