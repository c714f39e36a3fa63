// SPDX-License-Identifier: MIT
// What the main window does with the files that it is given.
#include "platform/system/FileURL.h"
#include "tests/desk/DeskTest.h"

#include <QFile>
#include <QLabel>
#include <QStackedWidget>

#include <fstream>

using ::testing::HasSubstr;

namespace {

class DeskWindowTest : public DeskTest { };

} // namespace

TEST_F(DeskWindowTest, AFileIsShownOnThePageWhy)
{
    const QString path = writeFile(QStringLiteral("story.txt"), "It was a dark night.\n");
    open().openFiles({QUrl::fromLocalFile(path)});
    const QWidget &page = *control<QStackedWidget>("pageStack").currentWidget();
    EXPECT_EQ(page.objectName(), QStringLiteral("WhyPage"));
    EXPECT_TRUE(waitUntil([&] {
        return page.findChild<QLabel *>(QStringLiteral("sourceLabel"))->text().contains(u"story.txt");
    }));
}

TEST_F(DeskWindowTest, AFileMayHaveANameThatIsNotUnicode)
{
    const QByteArray path = QFile::encodeName(world().home()) + "/caf\xE9.txt";
    std::ofstream(path.constData()) << "Two words.";
    open().openFiles({fileURLOfPath(path)});
    const auto *const page = control<QStackedWidget>("pageStack").currentWidget();
    EXPECT_TRUE(waitUntil([&] {
        return page->findChild<QLabel *>(QStringLiteral("sourceLabel"))->text() == u"caf\uFFFD.txt";
    }));
}

TEST_F(DeskWindowTest, AFileOfAnotherComputerIsReported)
{
    open().openFiles({QUrl(QStringLiteral("https://example.com/story.txt"))});
    EXPECT_THAT(control<QLabel>("noticeLabel").text().toStdString(),
        HasSubstr("https://example.com/story.txt: is not a file of this computer"));
}
