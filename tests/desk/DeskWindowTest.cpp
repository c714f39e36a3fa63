// SPDX-License-Identifier: MIT
// What the main window does with the files that it is given.
#include "tests/desk/DeskTest.h"

#include <QLabel>
#include <QStackedWidget>

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

TEST_F(DeskWindowTest, AFileOfAnotherComputerIsReported)
{
    open().openFiles({QUrl(QStringLiteral("https://example.com/story.txt"))});
    EXPECT_THAT(control<QLabel>("noticeLabel").text().toStdString(),
        HasSubstr("https://example.com/story.txt: is not a file of this computer"));
}
