// SPDX-License-Identifier: MIT
// UnreachableSuite keeps the preferences from being read and written, at once and without any waiting: a file
// stands in the place of their folder.
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

    /// As before, from now on.
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
