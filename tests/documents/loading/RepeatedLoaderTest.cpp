// SPDX-License-Identifier: MIT
#include "documents/loading/RepeatedLoader.h"

#include "documents/rtfd/RtfdPackage.h"
#include "tests/harness/QuillbayTest.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

/// Copies share their content, so the same text lies at the same place in memory.
bool isSameText(const AttributedString &one, const AttributedString &other)
{
    return one.string().constData() == other.string().constData();
}

const QByteArray rtfWithPicture = "{\\rtf1 seen {{\\NeXTGraphic a.png \\width10 \\height10}\xac}}";

} // namespace

class RepeatedLoaderTest : public QuillbayTest {
protected:
    static QByteArray writeDocument(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromLatin1(name), contents));
    }
    AttributedString load(const QByteArray &path) { return m_loader.load(path).value(); }

    RepeatedLoader m_loader;
};

TEST_F(RepeatedLoaderTest, UnchangedBytesAreMadeATextOnce)
{
    const QByteArray path = writeDocument("f.txt", "one");
    const AttributedString first = load(path);
    writeDocument("f.txt", "one");
    EXPECT_TRUE(isSameText(load(path), first));
    EXPECT_EQ(first, loadDocument(path).value());
}

TEST_F(RepeatedLoaderTest, OtherBytesAreLoadedThoughTheirSizeAndTimesAreTheSame)
{
    const QByteArray path = writeDocument("f.txt", "one");
    struct stat status;
    ASSERT_EQ(::stat(path.constData(), &status), 0);
    load(path);
    writeDocument("f.txt", "two");
    const timespec times[] = {status.st_atim, status.st_mtim};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.constData(), times, 0), 0);
    EXPECT_EQ(load(path).string(), QStringLiteral("two"));
}

TEST_F(RepeatedLoaderTest, TheSameBytesUnderAnotherNameMayBeAnotherKind)
{
    const QByteArray contents = "<p>one";
    EXPECT_EQ(load(writeDocument("f.txt", contents)).string(), QStringLiteral("<p>one"));
    const QByteArray page = writeDocument("f.html", contents);
    EXPECT_EQ(load(page), loadDocument(page).value());
    EXPECT_NE(load(page).string(), QStringLiteral("<p>one"));
}

TEST_F(RepeatedLoaderTest, AFailureIsNoText)
{
    const QByteArray path = writeDocument("f.txt", "one");
    load(path);
    ASSERT_TRUE(QFile::remove(QFile::decodeName(path)));
    EXPECT_EQ(causeText(m_loader.load(path).error()), QStringLiteral("no such file"));
    writeDocument("f.txt", "two");
    EXPECT_EQ(load(path).string(), QStringLiteral("two"));
}

TEST_F(RepeatedLoaderTest, WhatIsForgottenIsLoadedAnew)
{
    const QByteArray path = writeDocument("f.txt", "one");
    const AttributedString first = load(path);
    m_loader.forget();
    EXPECT_FALSE(isSameText(load(path), first));
}

TEST_F(RepeatedLoaderTest, TheTextOfALargeDocumentIsNotKept)
{
    m_loader = RepeatedLoader(4);
    const QByteArray path = writeDocument("f.txt", "1234");
    const AttributedString small = load(path);
    EXPECT_TRUE(isSameText(load(path), small));
    writeDocument("f.txt", "12345");
    const AttributedString large = load(path);
    EXPECT_EQ(large.string(), QStringLiteral("12345"));
    EXPECT_FALSE(isSameText(load(path), large));
}

TEST_F(RepeatedLoaderTest, APackageIsTheSameAsLongAsAllItsFilesAre)
{
    writeDocument("f.rtfd/TXT.rtf", rtfWithPicture);
    const QByteArray picture = writeDocument("f.rtfd/a.png", "one");
    const QByteArray path = picture.first(picture.lastIndexOf('/'));
    const AttributedString first = load(path);
    EXPECT_EQ(first, loadDocument(path).value());
    EXPECT_TRUE(isSameText(load(path), first));
    writeDocument("f.rtfd/a.png", "two");
    const AttributedString second = load(path);
    EXPECT_EQ(second, loadDocument(path).value());
    EXPECT_NE(second, first);
    ASSERT_TRUE(QFile::remove(QFile::decodeName(picture)));
    const AttributedString third = load(path);
    EXPECT_EQ(third, loadDocument(path).value());
    EXPECT_NE(third, second);
    EXPECT_TRUE(isSameText(load(path), third));
}

TEST_F(RepeatedLoaderTest, ThePictureBehindASymbolicLinkCountsByWhereItLies)
{
    writeDocument("f.rtfd/TXT.rtf", rtfWithPicture);
    const QByteArray inside = writeDocument("f.rtfd/b.png", "one");
    const QByteArray outside = writeDocument("b.png", "one");
    const QByteArray path = inside.first(inside.lastIndexOf('/'));
    const QString link = QFile::decodeName(path) + QStringLiteral("/a.png");
    ASSERT_TRUE(QFile::link(QFile::decodeName(inside), link));
    const AttributedString seen = load(path);
    ASSERT_TRUE(QFile::remove(link));
    ASSERT_TRUE(QFile::link(QFile::decodeName(outside), link));
    EXPECT_EQ(load(path), loadDocument(path).value());
    EXPECT_NE(load(path), seen);
}

TEST_F(RepeatedLoaderTest, TheTextOfALargePackageIsNotKept)
{
    const QByteArray rtf = writeDocument("f.rtfd/TXT.rtf", rtfWithPicture);
    const QByteArray path = rtf.first(rtf.lastIndexOf('/'));
    writeDocument("f.rtfd/a.png", "12");
    m_loader = RepeatedLoader(flatRtfdOfPackage(path).value().size());
    const AttributedString small = load(path);
    EXPECT_TRUE(isSameText(load(path), small));
    writeDocument("f.rtfd/a.png", "123");
    const AttributedString large = load(path);
    EXPECT_EQ(large, loadDocument(path).value());
    EXPECT_FALSE(isSameText(load(path), large));
}
