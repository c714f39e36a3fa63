// SPDX-License-Identifier: MIT
#include "platform/file_coordination/SecurityScopedBookmark.h"

#include "platform/system/FileURL.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/file_coordination/RecordingPresenter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>

using namespace std::chrono_literals;

class SecurityScopedBookmarkTest : public QuillbayTest {
protected:
    static QByteArray bookmark(const QString &path)
    {
        Result<QByteArray, BookmarkError> data = bookmarkDataOfURL(QUrl::fromLocalFile(path));
        return data ? std::move(data).value() : QByteArray();
    }
    static SecurityScopedURL resolved(const QByteArray &data)
    {
        return URLByResolvingBookmarkData(data).value();
    }
    static std::optional<BookmarkError::Cause> failure(const QByteArray &data)
    {
        const auto url = URLByResolvingBookmarkData(data);
        return url ? std::nullopt : std::optional(url.error().cause);
    }
    static qsizetype openDescriptors()
    {
        return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::System | QDir::AllEntries).size();
    }

    const QString m_path = writeFile(QStringLiteral("f.txt"), "text");
    const QString m_elsewhere = world().root() + QStringLiteral("/files/g.txt");
};

TEST_F(SecurityScopedBookmarkTest, LeadsBackToItsFile)
{
    SecurityScopedURL url = resolved(bookmark(m_path));
    EXPECT_EQ(url.url(), QUrl::fromLocalFile(m_path));
    EXPECT_TRUE(url.startAccessingSecurityScopedResource());
}

TEST_F(SecurityScopedBookmarkTest, OnlyExistingFilesCanBeBookmarked)
{
    EXPECT_EQ(
        bookmarkDataOfURL(QUrl::fromLocalFile(m_elsewhere)).error().cause, BookmarkError::Cause::NoSuchFile);
    EXPECT_EQ(bookmarkDataOfURL(QUrl(QStringLiteral("https://example.org/f.txt"))).error().cause,
        BookmarkError::Cause::NotALocalFile);
    EXPECT_EQ(bookmarkDataOfURL(QUrl()).error().cause, BookmarkError::Cause::NotALocalFile);
}

TEST_F(SecurityScopedBookmarkTest, AnOpenAccessFindsAMovedFile)
{
    const QByteArray data = bookmark(m_path);
    SecurityScopedURL url = resolved(data);
    ASSERT_TRUE(url.startAccessingSecurityScopedResource());
    ASSERT_TRUE(QFile::rename(m_path, m_elsewhere));
    EXPECT_EQ(resolved(data).url(), QUrl::fromLocalFile(m_elsewhere));
    url.stopAccessingSecurityScopedResource();
    EXPECT_EQ(failure(data), BookmarkError::Cause::NoSuchFile);
}

TEST_F(SecurityScopedBookmarkTest, AFileSavedInItsPlaceIsTheBookmarkedOne)
{
    const QByteArray data = bookmark(m_path);
    SecurityScopedURL url = resolved(data);
    ASSERT_TRUE(url.startAccessingSecurityScopedResource());
    ASSERT_TRUE(QFile::rename(m_path, m_path + u'~'));
    writeFile(QStringLiteral("f.txt"), "new");
    EXPECT_EQ(resolved(data).url(), QUrl::fromLocalFile(m_path));
}

TEST_F(SecurityScopedBookmarkTest, AnAccessFollowsThroughSavesAndMovesOfAPresentedFile)
{
    FakeClock clock;
    RecordingPresenter presenter(m_path);
    FileCoordinator::addFilePresenter(&presenter, clock);
    const QByteArray data = bookmark(m_path);
    std::optional<SecurityScopedURL> url = resolved(data);
    ASSERT_TRUE(url->startAccessingSecurityScopedResource());
    QString path = m_path;
    for (const char *name : {"g.txt", "h.txt"}) {
        QSaveFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("saved");
        ASSERT_TRUE(file.commit());
        QCoreApplication::processEvents();
        const QString next = world().root() + QStringLiteral("/files/") + QString::fromLatin1(name);
        ASSERT_TRUE(QFile::rename(path, next));
        path = next;
        SecurityScopedURL renewed = resolved(data);
        EXPECT_EQ(renewed.url(), QUrl::fromLocalFile(path));
        ASSERT_TRUE(renewed.startAccessingSecurityScopedResource());
        url.emplace(std::move(renewed));
        QCoreApplication::processEvents();
        clock.advance(500ms);
    }
}

TEST_F(SecurityScopedBookmarkTest, AThousandMovesLeaveNoDescriptorOpen)
{
    const QByteArray data = bookmark(m_path);
    const qsizetype before = openDescriptors();
    std::optional<SecurityScopedURL> url = resolved(data);
    ASSERT_TRUE(url->startAccessingSecurityScopedResource());
    QString path = m_path;
    for (int move = 0; move < 1000; ++move) {
        const QString next = world().root() + QStringLiteral("/files/%1.txt").arg(move);
        ASSERT_TRUE(QFile::rename(path, next));
        path = next;
        SecurityScopedURL renewed = resolved(data);
        ASSERT_EQ(renewed.url(), QUrl::fromLocalFile(path));
        url->stopAccessingSecurityScopedResource();
        ASSERT_TRUE(renewed.startAccessingSecurityScopedResource());
        url.emplace(std::move(renewed));
        ASSERT_EQ(openDescriptors(), before + 1);
    }
    url.reset();
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(SecurityScopedBookmarkTest, StartingTwiceNeedsOneDescriptorAndStoppingTwiceIsHarmless)
{
    SecurityScopedURL url = resolved(bookmark(m_path));
    const qsizetype before = openDescriptors();
    EXPECT_TRUE(url.startAccessingSecurityScopedResource());
    EXPECT_TRUE(url.startAccessingSecurityScopedResource());
    EXPECT_EQ(openDescriptors(), before + 1);
    url.stopAccessingSecurityScopedResource();
    url.stopAccessingSecurityScopedResource();
    EXPECT_EQ(openDescriptors(), before);
}

TEST_F(SecurityScopedBookmarkTest, AnAccessToADeletedFileIsNotOpened)
{
    SecurityScopedURL url = resolved(bookmark(m_path));
    ASSERT_TRUE(QFile::remove(m_path));
    EXPECT_FALSE(url.startAccessingSecurityScopedResource());
}

TEST_F(SecurityScopedBookmarkTest, DamagedDataIsNotABookmark)
{
    const QByteArray data = bookmark(m_path);
    ASSERT_FALSE(data.isEmpty());
    for (qsizetype length = 0; length < data.size(); ++length)
        EXPECT_EQ(failure(data.first(length)), BookmarkError::Cause::Damaged) << length;
    EXPECT_EQ(failure(data + '\0'), BookmarkError::Cause::Damaged);
    EXPECT_EQ(failure(QByteArray(1'000'000, 'x')), BookmarkError::Cause::Damaged);
    QByteArray otherSignature = data;
    otherSignature[0] = 'x';
    EXPECT_EQ(failure(otherSignature), BookmarkError::Cause::Damaged);
}

TEST_F(SecurityScopedBookmarkTest, LeadsToANameThatIsNotUtf8)
{
    const QUrl there = fileURLOfPath(writeFileOfBytes("caf\xE9.txt", "text"));
    const Result<QByteArray, BookmarkError> data = bookmarkDataOfURL(there);
    ASSERT_TRUE(data);
    SecurityScopedURL url = resolved(data.value());
    EXPECT_EQ(url.url(), there);
    EXPECT_TRUE(url.startAccessingSecurityScopedResource());
    const QByteArray moved = QFile::encodeName(m_elsewhere) + "\xE8";
    ASSERT_EQ(::rename(pathOfFileURL(there).constData(), moved.constData()), 0);
    EXPECT_EQ(resolved(data.value()).url(), fileURLOfPath(moved));
}
