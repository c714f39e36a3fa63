// SPDX-License-Identifier: MIT
#include "platform/system/Processes.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

/// Children of this process, zombies among them.
int numberOfChildren()
{
    int number = 0;
    const QByteArray self = QByteArray::number(getpid());
    for (const QString &name : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(name.toInt()));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray status = file.readAll();
        const QByteArrayList rest = status.mid(status.lastIndexOf(')') + 2).split(' ');
        number += rest.size() > 1 && rest[1] == self;
    }
    return number;
}

class DetachedProcess : public QuillbayTest {
protected:
    [[nodiscard]] QStringList lines() const
    {
        if (!QFile::exists(m_notes))
            return {};
        QStringList all = QString::fromUtf8(readFile(m_notes)).split(u'\n');
        all.removeLast();
        return all;
    }

    [[nodiscard]] QString script(const QByteArray &body) const
    {
        const QString path = writeFile(QStringLiteral("program"), "#!/bin/sh\n" + body);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return path;
    }

    const QString m_notes = world().root() + QStringLiteral("/notes");
};

} // namespace

TEST_F(DetachedProcess, TheArgumentsArriveUnchanged)
{
    const QString program =
        script("for a; do printf '%s\\n' \"$a\"; done >> '" + QFile::encodeName(m_notes) + "'\n");
    const QStringList arguments{QStringLiteral("two words"), QStringLiteral("; $(touch x) `y` \"'"),
        QString(), QStringLiteral("-5 ‘süß’")};
    EXPECT_FALSE(launchDetached(program, arguments));
    EXPECT_TRUE(waitUntil([this] { return lines().size() == 4; }));
    EXPECT_EQ(lines(), arguments);
}

TEST_F(DetachedProcess, ItIsNotWaitedForAndHasAnEmptyInput)
{
    const QString pipe = world().root() + QStringLiteral("/pipe");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const QString program = script("cat > /dev/null; read line < '" + QFile::encodeName(pipe)
        + "'; echo \"$line\" > '" + QFile::encodeName(m_notes) + "'\n");
    EXPECT_FALSE(launchDetached(program, {})); // it waits for this test
    EXPECT_FALSE(QFile::exists(m_notes));
    QFile file(pipe);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("go on\n");
    file.close();
    EXPECT_TRUE(waitUntil([this] { return lines() == QStringList{QStringLiteral("go on")}; }));
}

TEST_F(DetachedProcess, AHundredLeaveNoZombie)
{
    const int before = numberOfChildren();
    const QString program = script("echo done >> '" + QFile::encodeName(m_notes) + "'\n");
    for (int i = 0; i < 100; ++i)
        EXPECT_FALSE(launchDetached(program, {}));
    EXPECT_TRUE(waitUntil([this] { return lines().size() == 100; }));
    EXPECT_EQ(numberOfChildren(), before);
}

TEST_F(DetachedProcess, AProgramThatCannotBeStartedIsAnError)
{
    const int before = numberOfChildren();
    const std::optional<LaunchError> missing = launchDetached(QStringLiteral("/nonexistent/say"), {});
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing->launchPath, QStringLiteral("/nonexistent/say"));
    EXPECT_EQ(messageText(*missing),
        QStringLiteral("/nonexistent/say cannot be started: No such file or directory"));
    const QString noProgram = writeFile(QStringLiteral("plain.txt"), "text");
    const std::optional<LaunchError> forbidden = launchDetached(noProgram, {});
    ASSERT_TRUE(forbidden);
    EXPECT_EQ(messageText(*forbidden), noProgram + QStringLiteral(" cannot be started: Permission denied"));
    EXPECT_EQ(numberOfChildren(), before);
}
