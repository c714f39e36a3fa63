// SPDX-License-Identifier: MIT
// SpeechSample speaks a phrase as the windows of watched files do, and finds out whether that works. Those
// windows start the same command and do not wait for it.
// Thread: main.  Owner: RulesPage.
#pragma once

#include <QObject>
#include <QProcess>
#include <QString>

class SpeechSample : public QObject {
    Q_OBJECT

public:
    /// launchPath: of the speech command, which speaks its only argument.
    explicit SpeechSample(QString launchPath);
    /// Stops speaking.
    ~SpeechSample() override;

    [[nodiscard]] bool isCommandInstalled() const;
    [[nodiscard]] const QString &launchPath() const { return m_launchPath; }
    [[nodiscard]] bool isSpeaking() const { return m_process.state() != QProcess::NotRunning; }

    /// Does nothing while speaking.
    void speak();

Q_SIGNALS:
    /// Started or stopped speaking. problem: what the command reported; empty if it has not failed.
    void changed(const QString &problem);

private:
    void finish();

    const QString m_launchPath;
    QProcess m_process;
};
