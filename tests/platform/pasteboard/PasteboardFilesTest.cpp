// SPDX-License-Identifier: MIT
#include "platform/pasteboard/Pasteboard.h"
#include "tests/harness/QuillbayTest.h"

namespace {

const QString uriList = QStringLiteral("text/uri-list");

QStringList pathsIn(const Pasteboard::Forms &forms)
{
    QStringList paths;
    for (const QUrl &url : Pasteboard(forms).readFileURLs())
        paths.append(url.toLocalFile());
    return paths;
}

} // namespace

TEST(PasteboardFiles, AreThoseOfTheUriListInItsOrder)
{
    EXPECT_EQ(pathsIn({{uriList, "# two files\r\nfile:///b.txt\r\n\r\nfile:///a.txt\r\nfile:///b.txt\r\n"}}),
        QStringList({QStringLiteral("/b.txt"), QStringLiteral("/a.txt"), QStringLiteral("/b.txt")}));
}

TEST(PasteboardFiles, ArePercentDecoded)
{
    EXPECT_EQ(pathsIn({{uriList, "file:///my%20caf%C3%A9%23%25.txt"}}),
        QStringList(QStringLiteral("/my café#%.txt")));
}

TEST(PasteboardFiles, NeedNotBePercentEncoded)
{
    EXPECT_EQ(
        pathsIn({{uriList, "file:///my caf\xC3\xA9.txt\n"}}), QStringList(QStringLiteral("/my café.txt")));
}

TEST(PasteboardFiles, MayHaveNamesThatAreNotUtf8)
{
    for (const char *const list : {"file:///caf%E9.txt\r\n", "file:///caf\xE9.txt\r\n"}) {
        const QList<QUrl> files = Pasteboard({{uriList, list}}).readFileURLs();
        ASSERT_EQ(files.size(), 1) << list;
        EXPECT_EQ(files.first().toEncoded(), "file:///caf%E9.txt");
    }
}

TEST(PasteboardFiles, MayEndInANul)
{
    EXPECT_EQ(
        pathsIn({{uriList, QByteArray("file:///a.txt\r\n\0", 16)}}), QStringList(QStringLiteral("/a.txt")));
}

TEST(PasteboardFiles, AreOnThisMachine)
{
    EXPECT_EQ(pathsIn({{uriList, "file://localhost/a.txt"}}), QStringList(QStringLiteral("/a.txt")));
    EXPECT_THAT(
        pathsIn({{uriList, "file://elsewhere/a.txt\nhttps://a.org/b.txt\nsftp://c/d\nsome words\n/bare\n"}}),
        testing::IsEmpty());
}

TEST(PasteboardFiles, AreThoseOfFileManagers)
{
    EXPECT_EQ(
        pathsIn({{QStringLiteral("x-special/gnome-copied-files"), "copy\nfile:///a.txt\nfile:///b.txt"}}),
        QStringList({QStringLiteral("/a.txt"), QStringLiteral("/b.txt")}));
    EXPECT_EQ(pathsIn({{QStringLiteral("application/x-kde4-urilist"), "file:///a.txt\r\n"}}),
        QStringList(QStringLiteral("/a.txt")));
}

TEST(PasteboardFiles, AreTakenFromAnotherFormWhereTheFirstHasOnlyRemoteOnes)
{
    EXPECT_EQ(pathsIn({{uriList, "smb://server/a.txt"},
                  {QStringLiteral("application/x-kde4-urilist"), "file:///run/mounts/a.txt"}}),
        QStringList(QStringLiteral("/run/mounts/a.txt")));
}

TEST(PasteboardFiles, AreNoneWithoutAListOfThem)
{
    EXPECT_THAT(pathsIn({}), testing::IsEmpty());
    EXPECT_THAT(pathsIn({{QStringLiteral("text/plain"), "file:///a.txt"}}), testing::IsEmpty());
}
