// SPDX-License-Identifier: MIT
#include "desk/documents/FolderFiles.h"

#include "tests/harness/QuillbayTest.h"

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::SizeIs;

class FolderFilesTest : public QuillbayTest {
protected:
    FolderFilesTest()
    {
        for (const char *const name :
            {"book/b.md", "book/a.md", "book/part/c.txt", "book/.hidden.md", "book/x.png"})
            writeFile(QString::fromLatin1(name), "x");
        QFile::link(QStringLiteral(".."), m_folder + QStringLiteral("/part/loop"));
    }

    static std::vector<std::string> names(const QByteArrayList &paths)
    {
        std::vector<std::string> found;
        for (const QByteArray &path : paths)
            found.push_back(path.toStdString());
        return found;
    }

    const QString m_folder = world().root() + QStringLiteral("/files/book");
};

TEST_F(FolderFilesTest, MatchesPatternsInAllFoldersAndFollowsNoLink)
{
    EXPECT_THAT(names(filesOfFolder(m_folder, QStringLiteral("*.md *.txt"), 100)),
        ElementsAre(EndsWith("book/a.md"), EndsWith("book/b.md"), EndsWith("book/part/c.txt")));
}

TEST_F(FolderFilesTest, IsBounded)
{
    EXPECT_THAT(filesOfFolder(m_folder, QStringLiteral("*.md"), 1), SizeIs(1));
}
