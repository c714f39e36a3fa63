// SPDX-License-Identifier: MIT
// A watched document that has disappeared: the alert, its two buttons, and the choice of another file.
#include "tests/watching/windows/WatcherTest.h"

#include "platform/system/FileURL.h"
#include "watching/FileTypes.h"

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class FailureTest : public WatcherTest {
protected:
    FailureTest() { serve({"answer 1 2 3 4 5 6 7 8"}); }

    Controller &watchAndLose()
    {
        Controller &watcher = watch(m_path);
        QFile::remove(m_path);
        waitForAlert();
        return watcher;
    }

    const QString m_alertNote = QStringLiteral("alert: Failed to load text.");
};

TEST_F(FailureTest, BeepsAndAsksWithTheWindowClosed)
{
    const Controller &watcher = watchAndLose();
    EXPECT_THAT(m_desktop.notes, ElementsAre(QStringLiteral("beep"), m_alertNote));
    EXPECT_EQ(m_desktop.alert().informativeText,
        QStringLiteral(
            "Quillbay was unable to update the stats of the text file currently being watched. This "
            "usually means the file was either renamed or deleted. You can choose another text file "
            "to watch or cancel."));
    EXPECT_THAT(m_desktop.alert().buttons,
        ElementsAre(QStringLiteral("Close"), QStringLiteral("Choose another file.")));
    EXPECT_EQ(m_desktop.alert().windowTitle, QStringLiteral("novel.txt"));
    EXPECT_FALSE(watcher.detachableWindowForPopover()->isVisible());
    EXPECT_FALSE(watcher.watchFileModel()->isWatchingTextFile());
    EXPECT_EQ(m_registry.finished, 0);
}

TEST_F(FailureTest, TheAlertNamesTheFileByItsPresentName)
{
    const Controller &watcher = watch(m_path);
    const QString renamed = pathOf(QStringLiteral("<b>book.txt"));
    ASSERT_TRUE(QFile::rename(m_path, renamed));
    EXPECT_TRUE(waitUntil([&] {
        pass(std::chrono::milliseconds(100));
        return watcher.urlBeingWatched() == QUrl::fromLocalFile(renamed);
    }));
    QFile::remove(renamed);
    waitForAlert();
    EXPECT_EQ(m_desktop.alert().windowTitle, QStringLiteral("<b>book.txt"));
}

TEST_F(FailureTest, TheAlertAlsoNamesAFolder)
{
    const QString package = pathOf(QStringLiteral("notes.rtfd"));
    writeFile(QStringLiteral("notes.rtfd/TXT.rtf"), "{\\rtf1 Notes}");
    Controller &watcher = makeWindowForm();
    watcher.watchWithTextFileURL(QUrl::fromLocalFile(package + u'/'));
    ASSERT_TRUE(QDir(package).removeRecursively());
    waitForAlert();
    EXPECT_EQ(m_desktop.alert().windowTitle, QStringLiteral("notes.rtfd"));
}

TEST_F(FailureTest, TheAlertOpensAfterTheModelsMessageHasReturned)
{
    Controller &watcher = watch(m_path);
    watcher.currentlyWatchedTextFileDidFailToLoadAttribedText(*watcher.watchFileModel());
    EXPECT_THAT(m_desktop.notes, ElementsAre(QStringLiteral("beep")));
    EXPECT_FALSE(watcher.watchFileModel()->isWatchingTextFile());
    EXPECT_TRUE(waitUntil([this] { return m_desktop.numberOfAlerts() == 1; }));
}

TEST_F(FailureTest, CloseEndsTheWatcher)
{
    watchAndLose();
    m_desktop.pressAlertButton(0);
    EXPECT_EQ(m_registry.finished, 1);
    EXPECT_THAT(m_registry.watchers, IsEmpty());
    EXPECT_EQ(m_desktop.numberOnScreen, 0);
    EXPECT_EQ(m_desktop.numberOfOpenPanels(), 0U);
}

TEST_F(FailureTest, TheOtherButtonOffersOneFileOfTheAcceptedKinds)
{
    watchAndLose();
    m_desktop.pressAlertButton(1);
    ASSERT_EQ(m_desktop.numberOfOpenPanels(), 1U);
    EXPECT_EQ(m_desktop.openPanel().allowedFileTypes, QBYExtension::openPanelForTextFiles().allowedFileTypes);
    EXPECT_FALSE(m_desktop.openPanel().allowsMultipleSelection);
    EXPECT_EQ(m_registry.finished, 0);
}

TEST_F(FailureTest, CancellingTheChoiceEndsTheWatcher)
{
    watchAndLose();
    m_desktop.pressAlertButton(1);
    m_desktop.cancelOpenPanel();
    EXPECT_EQ(m_registry.finished, 1);
    EXPECT_THAT(m_registry.watchers, IsEmpty());
}

TEST_F(FailureTest, AnotherFileIsFollowedWithoutAWindowAndNotReadAtOnce)
{
    Controller &watcher = watchAndLose();
    const QString other = writeFile(QStringLiteral("other.txt"), "Some other words");
    m_desktop.pressAlertButton(1);
    m_desktop.confirmOpenPanel({QUrl::fromLocalFile(other)});
    pass();
    EXPECT_THAT(m_service->requests(), SizeIs(1));
    EXPECT_FALSE(watcher.detachableWindowForPopover()->isVisible());
    EXPECT_EQ(titleOf(*watcher.watchTextFileViewControllerForPopover()), QStringLiteral("novel.txt"));
    EXPECT_TRUE(watcher.watchFileModel()->isWatchingTextFile());
    EXPECT_EQ(watcher.urlBeingWatched(), QUrl::fromLocalFile(other));
    EXPECT_EQ(m_registry.finished, 0);

    writeFile(QStringLiteral("other.txt"), "More");
    pass();
    m_service->waitForRequests(2);
    waitForCount(watcher);
    EXPECT_FALSE(watcher.detachableWindowForPopover()->isVisible());
    watcher.showWindow();
    EXPECT_TRUE(watcher.detachableWindowForPopover()->isVisible());
}

TEST_F(FailureTest, TheChoiceStartsInTheFolderOfTheLostFile)
{
    watchAndLose();
    EXPECT_EQ(m_desktop.alert().windowTitle, QStringLiteral("novel.txt"));
    m_desktop.pressAlertButton(1);
    EXPECT_EQ(pathOfFileURL(m_desktop.openPanel().folder), QFile::encodeName(QFileInfo(m_path).path()));
}

TEST_F(FailureTest, AnUnreadableFileIsAFailure)
{
    watch(m_path);
    writeFile(QStringLiteral("novel.txt"), "\xff\xfe\xfd\x00\x01\x02\x00\x00");
    QFile::remove(m_path);
    ASSERT_TRUE(QDir().mkpath(m_path)); // a folder is no document
    waitForAlert();
    EXPECT_THAT(m_desktop.notes, ElementsAre(QStringLiteral("beep"), m_alertNote));
}

TEST_F(FailureTest, ADeletedWordDocumentIsAFailure)
{
    const QString path = writeFile(QStringLiteral("novel.docx"), "PK");
    watch(path);
    QFile::remove(path);
    waitForAlert();
    EXPECT_THAT(m_desktop.notes, ElementsAre(QStringLiteral("beep"), m_alertNote));
}

TEST_F(FailureTest, AWatcherLivesUntilItsAlertIsClosed)
{
    const std::weak_ptr<Controller> watcher = watchAndLose().shared_from_this();
    m_registry.watchers.clear();
    EXPECT_FALSE(watcher.expired());
    m_desktop.pressAlertButton(1);
    EXPECT_FALSE(watcher.expired());
    m_desktop.cancelOpenPanel();
    EXPECT_TRUE(watcher.expired());
}

TEST_F(FailureTest, AWatcherStoppedDuringItsAlertOnlyFinishesAgain)
{
    Controller &watcher = watchAndLose();
    watcher.watchTextFileViewControllerRequestedStop(nullptr);
    EXPECT_EQ(m_registry.finished, 1);
    m_desktop.pressAlertButton(1);
    m_desktop.confirmOpenPanel({QUrl::fromLocalFile(writeFile(QStringLiteral("other.txt"), "A"))});
    EXPECT_EQ(m_registry.finished, 1);
    EXPECT_EQ(m_desktop.numberOnScreen, 0);
}

TEST_F(FailureTest, AnotherFileMayHaveANameThatIsNotUtf8)
{
    const Controller &watcher = watchAndLose();
    const QUrl other = fileURLOfPath(writeFileOfBytes("caf\xE9.txt", "Some other words"));
    m_desktop.pressAlertButton(1);
    m_desktop.confirmOpenPanel({other});
    EXPECT_EQ(watcher.urlBeingWatched(), other);
    writeFileOfBytes("caf\xE9.txt", "More");
    pass();
    m_service->waitForRequests(2);
    waitForCount(watcher);
    EXPECT_TRUE(watcher.watchFileModel()->isWatchingTextFile());
}
