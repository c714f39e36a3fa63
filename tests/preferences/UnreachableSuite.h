// SPDX-License-Identifier: MIT
// UnreachableSuite makes reading and writing preferences fail immediately: it replaces their folder by a
// file.
// Thread: main.  Owner: the test.
#pragma once

#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

class UnreachableSuite {
public:
    UnreachableSuite()
    {
        EXPECT_TRUE(QDir().rename(m_folder, m_away));
        QFile obstacle(m_folder);
        EXPECT_TRUE(obstacle.open(QIODevice::WriteOnly));
    }
    UnreachableSuite(const UnreachableSuite &) = delete;
    UnreachableSuite &operator=(const UnreachableSuite &) = delete;
    ~UnreachableSuite() { end(); }

    /// Restores the folder.
    void end()
    {
        if (!QFileInfo(m_folder).isFile())
            return;
        EXPECT_TRUE(QFile::remove(m_folder));
        EXPECT_TRUE(QDir().rename(m_away, m_folder));
    }

private:
    const QString m_folder = TestHome::instance().configuration() + QStringLiteral("/quillbay");
    const QString m_away = m_folder + QStringLiteral("-away");
};
