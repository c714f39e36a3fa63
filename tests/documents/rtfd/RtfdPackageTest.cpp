// SPDX-License-Identifier: MIT
#include "documents/rtfd/RtfdReader.h"

#include "tests/harness/QuillbayTest.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

Result<AttributedString, DocumentError> readPackage(const QByteArray &path)
{
    const Result<QByteArray, DocumentError> bytes = flatRtfdOfPackage(path);
    return bytes ? readFlatRtfd(bytes.value()) : bytes.error();
}

const QByteArray rtfWithPicture = "{\\rtf1\\ansi a{{\\NeXTGraphic one.png \\width20 \\height20}\\'ac}b}";

class RtfdPackage : public QuillbayTest {
protected:
    static QByteArray package() { return QFile::encodeName(world().root()) + "/files/letter.rtfd"; }
    static QByteArray inPackage(const char *name) { return package() + '/' + name; }
    static void put(const char *name, const QByteArray &contents)
    {
        writeFile(QStringLiteral("letter.rtfd/") + QString::fromUtf8(name), contents);
    }
    static void link(const QByteArray &target, const char *name)
    {
        QDir().mkpath(QFile::decodeName(package()));
        ASSERT_EQ(::symlink(target.constData(), inPackage(name).constData()), 0);
    }
    /// A file beside the package.
    static QByteArray outside(const char *name, const QByteArray &contents)
    {
        return QFile::encodeName(writeFile(QString::fromLatin1(name), contents));
    }

    static QString causeFor(const QByteArray &path)
    {
        const Result<AttributedString, DocumentError> text = readPackage(path);
        return text ? QStringLiteral("none") : causeText(text.error());
    }
    /// The attachment in the RTF above; null where there is none.
    static std::shared_ptr<const Attachment> attachment()
    {
        const Result<AttributedString, DocumentError> text = readPackage(package());
        EXPECT_TRUE(text) << causeText(text.error()).toStdString();
        if (!text || text.value().string() != QStringLiteral("a\uFFFCb")) {
            ADD_FAILURE() << "another text";
            return nullptr;
        }
        return text.value().attributesAt(1).attachment;
    }
};

} // namespace

TEST_F(RtfdPackage, IsAFolderWithTxtRtf)
{
    EXPECT_FALSE(isRtfdPackage(package()));
    put("other.rtf", rtfWithPicture);
    EXPECT_FALSE(isRtfdPackage(package()));
    EXPECT_EQ(causeFor(package()), QStringLiteral("is an RTFD without TXT.rtf; save it again"));
    put("TXT.rtf", rtfWithPicture);
    EXPECT_TRUE(isRtfdPackage(package()));
    EXPECT_TRUE(isRtfdPackage(package() + '/'));
    EXPECT_FALSE(isRtfdPackage(inPackage("TXT.rtf")));
    EXPECT_FALSE(isRtfdPackage({}));
    EXPECT_FALSE(isRtfdPackage(package() + QByteArray("\0x", 2)));
}

TEST_F(RtfdPackage, ItsAttachmentsLieBesideTheText)
{
    put("TXT.rtf", rtfWithPicture);
    put("one.png", "first");
    put("two.png", "second");
    ASSERT_TRUE(attachment());
    EXPECT_EQ(*attachment(), (Attachment{QStringLiteral("one.png"), "first"}));
}

TEST_F(RtfdPackage, ItsNamesAreUtf8)
{
    put("TXT.rtf", QByteArray(rtfWithPicture).replace("one.png", "\\uc0\\u228 .png"));
    put("\u00E4.png", "first");
    ASSERT_TRUE(attachment());
    EXPECT_EQ(*attachment(), (Attachment{QStringLiteral("\u00E4.png"), "first"}));
}

TEST_F(RtfdPackage, AMissingAttachmentLeavesItsCharacter)
{
    put("TXT.rtf", rtfWithPicture);
    EXPECT_EQ(attachment(), nullptr);
}

TEST_F(RtfdPackage, AnAttachmentThatIsAFolderHasNoContents)
{
    put("TXT.rtf", rtfWithPicture);
    put("one.png/inner", "contents");
    ASSERT_TRUE(attachment());
    EXPECT_EQ(*attachment(), (Attachment{QStringLiteral("one.png"), {}}));
}

TEST_F(RtfdPackage, AnAttachmentThatIsNoRegularFileCountsAsMissing)
{
    put("TXT.rtf", rtfWithPicture);
    ASSERT_EQ(::mkfifo(inPackage("one.png").constData(), 0600), 0);
    EXPECT_EQ(attachment(), nullptr);
}

TEST_F(RtfdPackage, NothingOutsideTheFolderIsOpened)
{
    const QByteArray secret = outside("secret", "secret");
    put("inside/x", "x");
    for (const QByteArray &name : {QByteArray("../secret"), QByteArray("inside/../../secret"), secret,
             QByteArray("inside/x"), QByteArray(".."), QByteArray("."), QByteArray("TXT.rtf")}) {
        put("TXT.rtf", QByteArray(rtfWithPicture).replace("one.png", name));
        EXPECT_EQ(attachment(), nullptr) << name.constData();
    }
    put("TXT.rtf", rtfWithPicture);
    link(secret, "one.png");
    EXPECT_EQ(attachment(), nullptr);
    ASSERT_EQ(::unlink(inPackage("one.png").constData()), 0);
    link("../secret", "one.png");
    EXPECT_EQ(attachment(), nullptr);
}

TEST_F(RtfdPackage, AFolderWhoseNameBeginsTheSameIsAnotherFolder)
{
    put("TXT.rtf", rtfWithPicture);
    link(outside("letter.rtfd-other/secret", "secret"), "one.png");
    EXPECT_EQ(attachment(), nullptr);
}

TEST_F(RtfdPackage, ALinkWithinTheFolderLeadsToItsFile)
{
    put("TXT.rtf", rtfWithPicture);
    put("two.png", "second");
    link("two.png", "one.png");
    ASSERT_TRUE(attachment());
    EXPECT_EQ(*attachment(), (Attachment{QStringLiteral("one.png"), "second"}));
}

TEST_F(RtfdPackage, ALinkLeadsToThePackage)
{
    put("TXT.rtf", rtfWithPicture);
    put("one.png", "first");
    const QByteArray path = QFile::encodeName(world().root()) + "/link.rtfd";
    ASSERT_EQ(::symlink(package().constData(), path.constData()), 0);
    EXPECT_TRUE(isRtfdPackage(path));
    EXPECT_EQ(readPackage(path).value(), readPackage(package()).value());
}

TEST_F(RtfdPackage, ATextOutsideTheFolderIsNoText)
{
    link(outside("other.rtf", rtfWithPicture), "TXT.rtf");
    EXPECT_EQ(causeFor(package()), QStringLiteral("is an RTFD without TXT.rtf; save it again"));
}

TEST_F(RtfdPackage, WhyATextCannotBeReadIsNamed)
{
    put("TXT.rtf", "plain text");
    EXPECT_EQ(causeFor(package()), QStringLiteral("is an RTFD whose TXT.rtf is not RTF; save it again"));
    ASSERT_EQ(::unlink(inPackage("TXT.rtf").constData()), 0);
    ASSERT_EQ(::mkfifo(inPackage("TXT.rtf").constData(), 0600), 0);
    EXPECT_EQ(causeFor(package()), QStringLiteral("its TXT.rtf cannot be read: is a named pipe"));
    ASSERT_EQ(::unlink(inPackage("TXT.rtf").constData()), 0);
    put("TXT.rtf/x", {});
    EXPECT_EQ(causeFor(package()), QStringLiteral("its TXT.rtf cannot be read: is a folder"));
}

TEST_F(RtfdPackage, WhyAPathLeadsToNoPackageIsNamed)
{
    EXPECT_EQ(causeFor(package()), QStringLiteral("no such file"));
    EXPECT_EQ(causeFor({}), QStringLiteral("no such file"));
    EXPECT_EQ(causeFor(package() + QByteArray("\0x", 2)), QStringLiteral("no such file"));
    EXPECT_EQ(causeFor(outside("file", rtfWithPicture)), QStringLiteral("is not an RTFD"));
}

TEST_F(RtfdPackage, ItIsNoLargerThanADocumentMayBe)
{
    put("TXT.rtf", rtfWithPicture);
    put("one.png", {});
    // A sparse file; it is never read.
    ASSERT_EQ(::truncate(inPackage("one.png").constData(), INT32_MAX - rtf.size()), 0);
    EXPECT_EQ(attachment(), nullptr);
}
