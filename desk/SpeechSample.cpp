// SPDX-License-Identifier: MIT
#include "desk/SpeechSample.h"

#include "speech/ApplicationExtension.h"

#include <QFileInfo>

#include <utility>

namespace {

constexpr quint64 sampleCount = 250;
constexpr qsizetype maxProblemLength = 500; // characters of a message in the window

} // namespace

SpeechSample::SpeechSample(QString launchPath)
    : m_launchPath(std::move(launchPath))
{
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setStandardOutputFile(QProcess::nullDevice());
    connect(&m_process, &QProcess::finished, this, &SpeechSample::finish);
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            Q_EMIT changed(m_process.errorString());
    });
}

SpeechSample::~SpeechSample()
{
    m_process.disconnect(this);
    m_process.kill();
    m_process.waitForFinished();
}

bool SpeechSample::isCommandInstalled() const
{
    return QFileInfo(m_launchPath).isExecutable();
}

void SpeechSample::speak()
{
    if (isSpeaking())
        return;
    m_process.start(m_launchPath, {QBYExtension::wordCountPhrase(sampleCount)});
    if (isSpeaking())
        Q_EMIT changed({});
}

void SpeechSample::finish()
{
    const bool isWell = m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
    if (isWell) {
        Q_EMIT changed({});
        return;
    }
    const QString message =
        QString::fromUtf8(m_process.readAllStandardError()).simplified().left(maxProblemLength);
    Q_EMIT changed(message.isEmpty() ? tr("%1 failed.").arg(m_launchPath) : message);
}
