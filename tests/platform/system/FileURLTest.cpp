// SPDX-License-Identifier: MIT
#include "platform/system/FileURL.h"

#include "tests/harness/QuillbayTest.h"

namespace {

QByteArray pathOf(const QByteArray &encodedURL)
{
    return pathOfFileURL(QUrl::fromEncoded(encodedURL));
}

} // namespace

TEST(FileURL, KeepsEveryByteOfAPath)
{
    QByteArray path = "/folder/";
    for (int byte = 1; byte < 256; ++byte)
        path += static_cast<char>(byte);
    const QUrl url = fileURLOfPath(path);
    EXPECT_TRUE(url.isValid());
    EXPECT_EQ(pathOfFileURL(url), path);
    EXPECT_EQ(pathOfFileURL(QUrl::fromEncoded(url.toEncoded())), path);
}

TEST(FileURL, KeepsANameThatIsNotUtf8)
{
    EXPECT_EQ(pathOf("file:///tmp/caf%E9.txt"), "/tmp/caf\xE9.txt");
    EXPECT_EQ(fileURLOfPath("/tmp/caf\xE9.txt").toEncoded(), "file:///tmp/caf%E9.txt");
    EXPECT_NE(fileURLOfPath("/tmp/caf\xE9.txt"), fileURLOfPath("/tmp/caf\xE8.txt"));
}

TEST(FileURL, DistinguishesAPercentSignFromAnEncodedCharacter)
{
    EXPECT_EQ(pathOf("file:///tmp/100%25.txt"), "/tmp/100%.txt");
    EXPECT_EQ(pathOfFileURL(fileURLOfPath("/tmp/caf%E9.txt")), "/tmp/caf%E9.txt");
    EXPECT_NE(fileURLOfPath("/tmp/caf%E9.txt"), fileURLOfPath("/tmp/caf\xE9.txt"));
}

TEST(FileURL, GivesEqualPathsEqualUrls)
{
    for (const char *const written : {"file:///tmp/a%21(b).txt", "file:///tmp/a!%28b%29.txt",
             "file://localhost/tmp/a!(b).txt", "file:/tmp/%61!(b).txt", "FILE:///tmp/a!(b).txt#part"})
        EXPECT_EQ(fileURLOfPath(pathOf(written)), fileURLOfPath("/tmp/a!(b).txt")) << written;
}

TEST(FileURL, EqualsTheUrlOfQtForAUtf8Path)
{
    for (const char *const path :
        {"/tmp/a.txt", "/tmp/a b#c?d%e.txt", "/tmp/caf\u00E9 \u55AB\u8336\u5E97.txt", "/tmp/-a\nb.txt",
            "/tmp/!\"$&'()*+,;:<=>@[\\]^`{|}~", "/"}) {
        const QUrl url = QUrl::fromLocalFile(QString::fromUtf8(path));
        EXPECT_EQ(fileURLOfPath(path), url) << path;
        EXPECT_EQ(pathOfFileURL(url), path);
    }
}

TEST(FileURL, AFolderIsTheSameWithAndWithoutASlash)
{
    EXPECT_EQ(pathOf("file:///tmp/letter.rtfd/"), "/tmp/letter.rtfd");
    EXPECT_EQ(pathOf("file:///tmp/letter.rtfd//"), "/tmp/letter.rtfd");
    EXPECT_EQ(pathOf("file:///"), "/");
    EXPECT_EQ(pathOf("file:////"), "/");
}

TEST(FileURL, HasNoPathForAUrlThatIsNotAFileOfThisMachine)
{
    for (const char *const url : {"", "https://example.com/a.txt", "file://elsewhere/a.txt", "file:a.txt",
             "file:", "file:///a%00.txt", "/a.txt", "mailto:a@example.com"})
        EXPECT_EQ(pathOf(url), QByteArray()) << url;
    EXPECT_TRUE(fileURLOfPath({}).isEmpty());
}

TEST(FileURL, TheLastPathComponentIsReadableText)
{
    const auto nameOf = [](const QByteArray &url) { return lastPathComponent(QUrl::fromEncoded(url)); };
    EXPECT_EQ(nameOf("file:///tmp/a%20b%23c.txt"), QStringLiteral("a b#c.txt"));
    EXPECT_EQ(nameOf("file:///tmp/caf%C3%A9.txt"), QStringLiteral("caf\u00E9.txt"));
    EXPECT_EQ(nameOf("file:///tmp/caf%E9.txt"), QStringLiteral("caf\uFFFD.txt"));
    EXPECT_EQ(nameOf("file:///tmp/letter.rtfd/"), QStringLiteral("letter.rtfd"));
    EXPECT_EQ(nameOf("file:///"), QStringLiteral("/"));
    EXPECT_EQ(nameOf("https://example.com/a.txt"), QString());
}
