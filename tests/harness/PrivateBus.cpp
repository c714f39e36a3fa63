// SPDX-License-Identifier: MIT
#include "tests/harness/PrivateBus.h"

#include "tests/harness/TestHome.h"

#include <QFile>

#include <csignal>
#include <sys/types.h>

#include <gtest/gtest.h>

PrivateBus::PrivateBus()
    : m_address("unix:path=" + QFile::encodeName(TestHome::instance().runtime()) + "/private-bus")
{
    m_daemon.start(QStringLiteral("dbus-daemon"),
        {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
            QStringLiteral("--print-address"), QStringLiteral("--address=") + QFile::decodeName(m_address)});
    if (!m_daemon.waitForReadyRead(10'000))
        ADD_FAILURE() << "the bus did not start: " << m_daemon.readAllStandardError().constData();
}

PrivateBus::~PrivateBus()
{
    stop();
}

void PrivateBus::stop()
{
    if (m_daemon.state() == QProcess::NotRunning)
        return;
    m_daemon.kill();
    m_daemon.waitForFinished();
}

void PrivateBus::suspend() const
{
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGSTOP);
}

void PrivateBus::resume() const
{
    ::kill(static_cast<pid_t>(m_daemon.processId()), SIGCONT);
}
