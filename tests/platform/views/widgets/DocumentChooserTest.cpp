// SPDX-License-Identifier: MIT
// Folders that are documents, in the real file chooser.
#include "platform/views/widgets/DocumentChooser.h"

#include "platform/views/widgets/WidgetDesktop.h"
#include "tests/harness/Display.h"
#include "tests/harness/QuillbayTest.h"
#include "tests/harness/Screenshot.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QPointer>
#include <QTreeView>

#include <utility>

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

namespace {

class DocumentChooserTest : public QuillbayTest {
protected:
    DocumentChooserTest()
    {
        writeFile(QStringLiteral("notes.RTFD/TXT.rtf"), "{\\rtf1 Notes}");
        writeFile(QStringLiteral("plain/novel.txt"), "Once");
        writeFile(QStringLiteral("letter.txt"), "Dear all");
    }

    void open(bool allowsMultipleSelection = false)
    {
        m_desktop.beginOpenPanel({.allowedFileTypes = {QStringLiteral("text/plain")},
                                     .packageSuffixes = {QStringLiteral("rtfd")},
                                     .allowsMultipleSelection = allowsMultipleSelection},
            [this](const std::optional<QList<QUrl>> &urls) { m_chosen.push_back(urls); });
        EXPECT_TRUE(waitUntil([this] {
            m_chooser = nullptr;
            for (QWidget *const widget : QApplication::topLevelWidgets()) {
                if (widget->isVisible() && qobject_cast<DocumentChooser *>(widget))
                    m_chooser = qobject_cast<DocumentChooser *>(widget);
            }
            return m_chooser && m_chooser->isActiveWindow();
        }));
        m_chooser->setViewMode(QFileDialog::Detail);
        m_chooser->setDirectory(m_folder);
    }
    /// Clicks the name in the list once all names are there; does nothing if a choice has closed the chooser.
    void click(const QString &name, int times, const QStringList &around = {})
    {
        if (!m_chooser)
            return;
        auto *const list = m_chooser->findChild<QTreeView *>();
        QRect place;
        EXPECT_TRUE(waitUntil([&] {
            const QModelIndexList found = list->model()->match(
                list->model()->index(0, 0, list->rootIndex()), Qt::DisplayRole, name, 1, Qt::MatchExactly);
            const QRect former =
                std::exchange(place, found.isEmpty() ? QRect() : list->visualRect(found.front()));
            const auto names = m_chooser->directory().entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
            // The list is sorted again while the names arrive.
            return !place.isEmpty() && place == former
                && list->model()->rowCount(list->rootIndex()) == names.size();
        })) << name.toStdString();
        const QPoint point = list->viewport()->mapToGlobal(QPoint(place.left() + 40, place.center().y()));
        QStringList commands{
            QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y())};
        commands += around.isEmpty() ? QStringList() : QStringList{QStringLiteral("keydown")} + around;
        commands += {
            QStringLiteral("click"), QStringLiteral("--repeat"), QString::number(times), QStringLiteral("1")};
        commands += around.isEmpty() ? QStringList() : QStringList{QStringLiteral("keyup")} + around;
        TestDisplay::xdotool(commands);
    }
    static void press(const char *key)
    {
        TestDisplay::xdotool({QStringLiteral("key"), QString::fromLatin1(key)});
    }
    QList<QUrl> waitForChoice()
    {
        EXPECT_TRUE(waitUntil([this] { return !m_chosen.empty(); }));
        return m_chosen.empty() ? QList<QUrl>() : m_chosen.front().value_or(QList<QUrl>());
    }

    const QString m_folder = world().root() + QStringLiteral("/files");
    const QUrl m_package = QUrl::fromLocalFile(m_folder + QStringLiteral("/notes.RTFD"));
    WidgetDesktop m_desktop;
    QPointer<DocumentChooser> m_chooser; // closed by a choice
    std::vector<std::optional<QList<QUrl>>> m_chosen;
};

} // namespace

TEST_F(DocumentChooserTest, ADoubleClickChoosesAPackage)
{
    open();
    saveScreenshot(QStringLiteral("document-chooser"));
    click(QStringLiteral("notes.RTFD"), 2);
    EXPECT_THAT(waitForChoice(), ElementsAre(m_package));
    EXPECT_FALSE(m_desktop.isAskingUser());
}

TEST_F(DocumentChooserTest, TheButtonChoosesAPackageThatIsSelected)
{
    open();
    click(QStringLiteral("notes.RTFD"), 1);
    EXPECT_TRUE(
        waitUntil([this] { return m_chooser && m_chooser->selectedUrls() == QList<QUrl>{m_package}; }));
    press("alt+o");
    EXPECT_THAT(waitForChoice(), ElementsAre(m_package));
}

TEST_F(DocumentChooserTest, ATypedNameChoosesAPackage)
{
    for (const QString &typed :
        {m_package.toLocalFile(), m_package.toLocalFile() + u'/', QStringLiteral("notes.RTFD")}) {
        m_chosen.clear();
        open();
        EXPECT_TRUE(waitUntil([this] {
            const auto *const name = m_chooser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
            return name && name->hasFocus();
        }));
        TestDisplay::xdotool(
            {QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("30"), typed});
        EXPECT_TRUE(waitUntil([this] {
            return m_chooser && m_chooser->selectedUrls() == QList<QUrl>{m_package};
        })) << typed.toStdString();
        press("Return");
        EXPECT_THAT(waitForChoice(), ElementsAre(m_package)) << typed.toStdString();
    }
}

TEST_F(DocumentChooserTest, EntersOtherFolders)
{
    open();
    click(QStringLiteral("plain"), 2);
    EXPECT_TRUE(waitUntil(
        [this] { return m_chooser && m_chooser->directory().dirName() == QStringLiteral("plain"); }));
    EXPECT_THAT(m_chosen, IsEmpty());
    click(QStringLiteral("novel.txt"), 2);
    EXPECT_THAT(
        waitForChoice(), ElementsAre(QUrl::fromLocalFile(m_folder + QStringLiteral("/plain/novel.txt"))));
}

TEST_F(DocumentChooserTest, APackageAndAFileCanBeChosenTogether)
{
    open(true);
    click(QStringLiteral("notes.RTFD"), 1);
    click(QStringLiteral("letter.txt"), 1, {QStringLiteral("ctrl")});
    EXPECT_TRUE(waitUntil([this] { return m_chooser && m_chooser->selectedUrls().size() == 2; }));
    press("alt+o");
    EXPECT_THAT(waitForChoice(),
        testing::UnorderedElementsAre(
            m_package, QUrl::fromLocalFile(m_folder + QStringLiteral("/letter.txt"))));
}

TEST_F(DocumentChooserTest, AFolderThatIsNotADocumentCannotBeChosenWithOne)
{
    open(true);
    click(QStringLiteral("notes.RTFD"), 1);
    click(QStringLiteral("plain"), 1, {QStringLiteral("ctrl")});
    EXPECT_TRUE(waitUntil([this] { return m_chooser && m_chooser->selectedUrls().size() == 2; }));
    press("alt+o");
    press("Escape");
    EXPECT_TRUE(waitUntil([this] { return !m_chosen.empty(); }));
    EXPECT_THAT(m_chosen, ElementsAre(std::nullopt));
}

TEST_F(DocumentChooserTest, StartsInTheFolderOrTheNearestThatExists)
{
    const auto start = [](const QString &path) {
        return DocumentChooser({.folder = QUrl::fromLocalFile(path)}).directory().path();
    };
    EXPECT_EQ(start(m_folder + QStringLiteral("/plain")), m_folder + QStringLiteral("/plain"));
    EXPECT_EQ(start(m_folder + QStringLiteral("/plain/novel.txt")), m_folder + QStringLiteral("/plain"));
    EXPECT_EQ(start(m_folder + QStringLiteral("/gone/deep/")), m_folder);
    EXPECT_EQ(DocumentChooser(OpenPanel()).directory(), QDir::home());
}
