// SPDX-License-Identifier: MIT
#include "platform/sandbox/FontSources.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

class FontSourcesTest : public QuillbayTest {
protected:
    FontSourcesTest()
    {
        QDir().mkpath(m_folder + QStringLiteral("/deep/deeper"));
        configure("<dir>" + QFile::encodeName(m_folder) + "</dir>");
    }

    static void configure(const QByteArray &content)
    {
        QFile file(world().root() + QStringLiteral("/fonts/fonts.conf"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("<?xml version=\"1.0\"?><fontconfig>" + content + "</fontconfig>");
    }

    static void write(const QString &path, const QByteArray &contents = "a font")
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    /// Whether the watch has noticed a change since the last call.
    bool notices()
    {
        const quint64 before = m_generation;
        m_generation = m_watch.generation();
        return m_generation != before;
    }

    const QString m_folder = world().root() + QStringLiteral("/own-fonts");
    FontWatch m_watch;
    quint64 m_generation = 0;
};

} // namespace

TEST_F(FontSourcesTest, NamesFoldersLinksAndConfiguration)
{
    const QString elsewhere = world().root() + QStringLiteral("/elsewhere");
    QDir().mkpath(elsewhere);
    ASSERT_TRUE(QFile::link(elsewhere, m_folder + QStringLiteral("/deep/link")));
    const QByteArrayList readable = FontSources::current().readable;
    EXPECT_TRUE(readable.contains(QFile::encodeName(m_folder)));
    EXPECT_TRUE(readable.contains(QFile::encodeName(m_folder + QStringLiteral("/deep/link"))));
    EXPECT_TRUE(readable.contains(QFile::encodeName(world().root() + QStringLiteral("/fonts/fonts.conf"))));
}

TEST_F(FontSourcesTest, NoticesNothingWithoutAChange)
{
    write(m_folder + QStringLiteral("/a.ttf"));
    EXPECT_TRUE(notices());
    EXPECT_FALSE(notices());
    write(world().home() + QStringLiteral("/letter.txt"));
    EXPECT_FALSE(notices());
}

TEST_F(FontSourcesTest, NoticesAddedAndRemovedFonts)
{
    ASSERT_TRUE(notices());
    for (const char *path : {"/a.ttf", "/deep/deeper/b.ttf"}) {
        write(m_folder + QString::fromUtf8(path));
        EXPECT_TRUE(notices()) << path;
        EXPECT_FALSE(notices()) << path;
        QFile::remove(m_folder + QString::fromUtf8(path));
        EXPECT_TRUE(notices()) << path;
    }
}

TEST_F(FontSourcesTest, NoticesAFontInANewFolder)
{
    ASSERT_TRUE(notices());
    QDir().mkpath(m_folder + QStringLiteral("/new"));
    EXPECT_TRUE(notices());
    write(m_folder + QStringLiteral("/new/a.ttf"));
    EXPECT_TRUE(notices());
}

TEST_F(FontSourcesTest, NoticesAnOverwrittenFont)
{
    const QString font = m_folder + QStringLiteral("/a.ttf");
    write(font);
    const timespec old[2] = {{1, 0}, {1, 0}};
    ASSERT_EQ(::utimensat(AT_FDCWD, QFile::encodeName(font).constData(), old, 0), 0);
    ASSERT_TRUE(notices());
    write(font, "another");
    EXPECT_TRUE(notices());
}

TEST_F(FontSourcesTest, NoticesAFontBehindALink)
{
    const QString elsewhere = world().root() + QStringLiteral("/elsewhere");
    QDir().mkpath(elsewhere);
    ASSERT_TRUE(QFile::link(elsewhere, m_folder + QStringLiteral("/link")));
    ASSERT_TRUE(notices());
    write(elsewhere + QStringLiteral("/a.ttf"));
    EXPECT_TRUE(notices());
}

TEST_F(FontSourcesTest, LoopsOfLinksEnd)
{
    ASSERT_TRUE(QFile::link(m_folder, m_folder + QStringLiteral("/deep/circle")));
    EXPECT_TRUE(notices());
    EXPECT_FALSE(notices());
}

TEST_F(FontSourcesTest, NoticesAFolderThatDidNotExist)
{
    const QString later = world().root() + QStringLiteral("/later");
    configure("<dir>" + QFile::encodeName(later) + "</dir>");
    ASSERT_TRUE(notices());
    QDir().mkpath(later);
    EXPECT_TRUE(notices());
    write(later + QStringLiteral("/a.ttf"));
    EXPECT_TRUE(notices());
}

TEST_F(FontSourcesTest, NoticesAChangedConfiguration)
{
    ASSERT_TRUE(notices());
    configure("");
    EXPECT_TRUE(notices());
    QDir().mkpath(world().configuration() + QStringLiteral("/fontconfig"));
    EXPECT_TRUE(notices());
    write(world().configuration() + QStringLiteral("/fontconfig/fonts.conf"), "<fontconfig/>");
    EXPECT_TRUE(notices());
}
