// SPDX-License-Identifier: MIT
// The files below a folder are those that git lists as not ignored.
#include "command/FolderWalk.h"

#include "tests/command/CommandTest.h"

#include <QDir>
#include <QStandardPaths>

#include <unistd.h>

namespace {

class FolderWalkTest : public CommandTest {
protected:
    FolderWalkTest()
    {
        for (const char *path : {"a.txt", "b.md", "ab.txt", "foo", "we ird", "trail ", "#hash", "!bang",
                 "[x]", "a*b", "UPPER.TXT", "x1", "x9", "x-", "dir/a.txt", "dir/foo/deep.txt",
                 "dir/sub/a.txt", "dir/sub/b.md", "dir/sub/foo", "build/x.o", "build/keep.txt",
                 "deep/build/x.o", "deep/er/build/y.txt", "deep/er/a.txt", "doc/frotz/a.txt",
                 "a/doc/frotz/a.txt", ".hidden/a.txt", ".dot"})
            write(path, "text");
    }

    [[nodiscard]] QString path(const char *name) const { return m_root + u'/' + QString::fromUtf8(name); }

    void write(const char *name, const QByteArray &contents) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(contents);
    }

    [[nodiscard]] QByteArrayList walked(const QByteArrayList &globs = {}, const char *below = "") const
    {
        FolderWalk walk(globs, [](const QByteArray &where, int) { ADD_FAILURE() << where.constData(); });
        QByteArrayList files;
        for (const QByteArray &file : walk.filesBelow(QFile::encodeName(path(below))))
            files.append(file.sliced(QFile::encodeName(m_root).size() + 1));
        std::sort(files.begin(), files.end());
        return files;
    }

    [[nodiscard]] ChildProcess::Outcome git(const QByteArrayList &words) const
    {
        return ChildProcess(QStringLiteral("git")).inFolder(m_root).run(words);
    }

    [[nodiscard]] QByteArrayList listedByGit() const
    {
        QByteArrayList files =
            git({"-c", "core.excludesFile=/dev/null", "ls-files", "-z", "--others", "--exclude-standard"})
                .output.split('\0');
        files.removeAll({});
        std::sort(files.begin(), files.end());
        return files;
    }

    const QString m_root = world().root() + QStringLiteral("/tree");
};

} // namespace

TEST_F(FolderWalkTest, IgnoresWhatGitIgnores)
{
    SKIP_WITHOUT_PACKAGE(!QStandardPaths::findExecutable(QStringLiteral("git")).isEmpty(), "git");
    ASSERT_EQ(git({"init", "-q"}).exitStatus, 0);
    for (const char *patterns : {"", "*.txt", "/a.txt", "foo", "foo/", "/foo", "dir/foo", "dir/*", "dir/**",
             "**/foo", "**/build/", "build/", "deep/**/build", "a/**/b", "doc/frotz", "doc/frotz/",
             "/doc/frotz", "*/a.txt", "**", "*", "?", "??.txt", "x[0-9]", "x[!0-9]", "x[^1]", "x[]-]",
             "x[-a]", "[[]x]", "\\[x]", "a\\*b", "a*b", "\\#hash", "#hash", "\\!bang", "!bang", "we ird",
             "trail\\ ", "trail ", "*.TXT", "[[:upper:]]*", "[[:alpha:]][[:digit:]]", "x[", "*.txt\n!a.txt",
             "*.txt\n!/dir/sub/a.txt", "build/\n!build/keep.txt", "build/*\n!build/keep.txt",
             "/*\n!/dir\n/dir/*\n!/dir/sub", "dir/sub/\r\n",
             "\xEF\xBB\xBF"
             "foo",
             ".*", ".hidden", "**/a.txt", "dir/**/a.txt", "a.txt/", "/", "//", "!", "dir//sub", "***",
             "dir***", "d*/s*/*.md", "\\a.txt", "foo\\", "*/*/foo", "**/**/foo", "dir/**/**", "**/sub/**"}) {
        write(".gitignore", patterns);
        EXPECT_EQ(walked(), listedByGit()) << patterns;
    }
}

TEST_F(FolderWalkTest, ListsOfInnerFoldersAndOfTheRepositoryHold)
{
    SKIP_WITHOUT_PACKAGE(!QStandardPaths::findExecutable(QStringLiteral("git")).isEmpty(), "git");
    ASSERT_EQ(git({"init", "-q"}).exitStatus, 0);
    write(".gitignore", "*.md\nfoo\n");
    write("dir/.gitignore", "!b.md\n/a.txt\nsub/a.txt");
    write("dir/sub/.gitignore", "!foo");
    write(".git/info/exclude", "x?\n!foo");
    EXPECT_EQ(walked(), listedByGit());
    // The same below a folder, as the lists above it count.
    QByteArrayList inDir = listedByGit();
    inDir.removeIf([](const QByteArray &file) { return !file.startsWith("dir/"); });
    EXPECT_EQ(walked({}, "dir"), inDir);
}

TEST_F(FolderWalkTest, WithoutARepositoryTheListsBelowTheFolderHold)
{
    write("dir/.gitignore", "sub\n");
    EXPECT_EQ(walked({"*.md"}), (QByteArrayList{"b.md"}));
    EXPECT_EQ(walked({"*.md"}, "dir/sub"), (QByteArrayList{"dir/sub/b.md"}));
}

TEST_F(FolderWalkTest, GlobsChooseNames)
{
    EXPECT_EQ(walked({"b.*", "x[19]"}), (QByteArrayList{"b.md", "dir/sub/b.md", "x1", "x9"}));
    EXPECT_EQ(walked({"*/b.md"}), QByteArrayList());
}

TEST_F(FolderWalkTest, LinksAreNotFollowed)
{
    const QByteArray root = QFile::encodeName(m_root);
    ASSERT_EQ(::symlink(root.constData(), (root + "/loop").constData()), 0);
    ASSERT_EQ(::symlink("/dev/zero", (root + "/dir/.gitignore").constData()), 0);
    EXPECT_EQ(walked({"b.md"}), (QByteArrayList{"b.md", "dir/sub/b.md"}));
}

TEST(Globs, HostilePatternsTakeTimeInProportion)
{
    const QByteArray text(4000, 'a');
    EXPECT_FALSE(matchesGlob(QByteArray("*a").repeated(1000) + "b", text, false));
    EXPECT_FALSE(matchesGlob(QByteArray("**/").repeated(1000) + "b", QByteArray("a/").repeated(1000), true));
    EXPECT_TRUE(matchesGlob("**/a", "a", true));
    EXPECT_FALSE(matchesGlob(QByteArray("[").repeated(1000), text, false));
}
