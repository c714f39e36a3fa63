// SPDX-License-Identifier: MIT
// LeftOutFiles reports the files for which a command opens no window: each on standard error, and all in one
// notification for users of a file manager, which shows nothing of standard error.
// Thread: main.  Owner: the command.
#pragma once

#include <QByteArray>
#include <QString>

class LeftOutFiles {
public:
    /// Reports the file on standard error.
    void add(const QByteArray &name, const QString &cause);

    [[nodiscard]] bool isEmpty() const { return m_count == 0; }

    /// Does nothing if no file was left out. A notification server may take its time.
    void notify() const;

private:
    QString m_first; ///< name and cause
    qsizetype m_count = 0;
};
