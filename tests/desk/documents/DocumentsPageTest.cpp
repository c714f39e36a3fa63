// SPDX-License-Identifier: MIT
// The page "Documents" as a user meets it: on a display, with real files and the real counting service.
#include "desk/documents/DocumentsPage.h"

#include "preferences/QBYUserDefaultsController.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/documents/docx/PackageWriter.h"
#include "tests/harness/Display.h"
#include "tests/harness/Screenshot.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTableView>
#include <QTimer>

using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace {

class DocumentsPageTest : public CountingServiceTest {
protected:
    DocumentsPageTest()
    {
        TestDisplay::start();
        setLocale("en_US.UTF-8");
        takeLocaleFromEnvironment();
        QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
        installService();
    }

    DocumentsPage &open()
    {
        m_page.emplace([this](const QByteArrayList &paths) { m_watched = paths; });
        m_page->resize(1000, 500);
        m_page->show();
        m_page->activateWindow();
        EXPECT_TRUE(waitUntil([this] { return m_page->isActiveWindow(); }));
        return *m_page;
    }

    template <typename Widget>
    Widget &control(const char *name)
    {
        auto *const found = m_page->findChild<Widget *>(QString::fromLatin1(name));
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    QTableView &table() { return control<QTableView>("documentTable"); }
    void click(const char *button) { control<QPushButton>(button).click(); }

    /// The column with that title.
    int columnOf(const char *title)
    {
        const QAbstractItemModel &model = *table().model();
        for (int column = 0; column < model.columnCount(); ++column) {
            if (model.headerData(column, Qt::Horizontal).toString() == QLatin1StringView(title))
                return column;
        }
        ADD_FAILURE() << "no column " << title;
        return 0;
    }
    std::string cell(int row, const char *title)
    {
        return table().model()->index(row, columnOf(title)).data().toString().toStdString();
    }
    bool becomes(int row, const char *title, const std::string &text)
    {
        return waitUntil([&] { return cell(row, title) == text; })
            || (ADD_FAILURE() << cell(row, title), false);
    }
    std::vector<std::string> names()
    {
        std::vector<std::string> found;
        for (int row = 0; row < table().model()->rowCount(); ++row)
            found.push_back(cell(row, "Name"));
        return found;
    }
    QByteArray list(const QString &name, const QByteArray &text)
    {
        const QByteArray path = QFile::encodeName(writeFile(name, text));
        EXPECT_TRUE(m_store.add({path}).hasValue());
        return path;
    }
    static void picture(const QString &name)
    {
        QCoreApplication::processEvents(); // paints
        QGuiApplication::sync();
        saveScreenshot(name);
    }

    ProgressStore m_store;
    QByteArrayList m_watched;
    std::optional<DocumentsPage> m_page;
};

} // namespace

TEST_F(DocumentsPageTest, AnEmptyPageSaysWhatItIsForAndStoresNothing)
{
    open();
    EXPECT_THAT(control<QLabel>("stateLabel").text().toStdString(), HasSubstr("Drop documents here"));
    EXPECT_FALSE(control<QLabel>("totalLabel").isVisible());
    EXPECT_FALSE(QFile::exists(QFile::decodeName(m_store.path())));
}

TEST_F(DocumentsPageTest, RowsFollowEverySave)
{
    list(QStringLiteral("a.txt"), "one two three");
    open();
    EXPECT_TRUE(becomes(0, "Words", "3"));
    EXPECT_EQ(cell(0, "Today"), "0");
    writeFile(QStringLiteral("a.txt"), "one two three four five");
    EXPECT_TRUE(becomes(0, "Words", "5"));
    EXPECT_TRUE(becomes(0, "Today", "+2"));
    EXPECT_EQ(cell(0, "Session"), "+2");
}

TEST_F(DocumentsPageTest, TwentyDocumentsThatAreSavedAtOnceAreAllCounted)
{
    constexpr int documents = 20;
    const auto name = [](int i) { return QStringLiteral("chapter %1.md").arg(i); };
    for (int i = 0; i < documents; ++i)
        list(name(i), "one");
    open();
    for (int i = 0; i < documents; ++i)
        EXPECT_TRUE(becomes(i, "Words", "1"));
    for (int i = 0; i < documents; ++i)
        writeFile(name(i), QByteArray("word ").repeated(i + 2));
    for (int i = 0; i < documents; ++i)
        EXPECT_TRUE(becomes(i, "Words", std::to_string(i + 2)));
    EXPECT_TRUE(waitUntil([this] {
        return control<QLabel>("totalLabel").text().contains(u"All documents (20) · Words: 230 ·");
    }));
}

TEST_F(DocumentsPageTest, AWordDocumentIsCountedToo)
{
    WordPackage document;
    document.body = "<w:p><w:r><w:t>One two three four.</w:t></w:r></w:p>";
    list(QStringLiteral("a.docx"), document.bytes());
    open();
    EXPECT_TRUE(becomes(0, "Words", "4"));
}

TEST_F(DocumentsPageTest, ARenamedDocumentKeepsItsRowAndItsHistory)
{
    const QByteArray path = list(QStringLiteral("a.txt"), "one two three");
    open();
    EXPECT_TRUE(becomes(0, "Words", "3"));
    const QString renamed = world().root() + QStringLiteral("/files/b.txt");
    ASSERT_TRUE(QFile::rename(QFile::decodeName(path), renamed));
    EXPECT_TRUE(becomes(0, "Name", "b.txt"));
    EXPECT_TRUE(waitUntil([&] { return !m_store.history(QFile::encodeName(renamed)).value().empty(); }));
}

TEST_F(DocumentsPageTest, AMissingDocumentSaysSoWithoutAnAlertAndComesBack)
{
    const QByteArray path = list(QStringLiteral("a.txt"), "one two three");
    open();
    EXPECT_TRUE(becomes(0, "Words", "3"));
    table().selectRow(0);
    EXPECT_FALSE(control<QPushButton>("findButton").isEnabled());
    QFile::remove(QFile::decodeName(path));
    EXPECT_TRUE(becomes(0, "Last save", "The file is missing"));
    EXPECT_TRUE(waitUntil([this] { return control<QPushButton>("findButton").isEnabled(); }));
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    writeFile(QStringLiteral("a.txt"), "one two");
    EXPECT_TRUE(becomes(0, "Words", "2"));
}

TEST_F(DocumentsPageTest, AnUnchangedDocumentShowsItsStoredCountsAtOnce)
{
    const QByteArray path = list(QStringLiteral("a.txt"), "one two three");
    EXPECT_TRUE(
        m_store
            .record(DocumentCount{.path = path, .stats = {.numberOfWords = 77}}, QDateTime::currentDateTime())
            .hasValue());
    open();
    EXPECT_EQ(cell(0, "Words"), "77");
    EXPECT_TRUE(becomes(0, "Words", "3")); // it was never stamped, so it is counted
}

TEST_F(DocumentsPageTest, SortsByNumbersAndFilters)
{
    list(QStringLiteral("nine.txt"), QByteArray("word ").repeated(9));
    list(QStringLiteral("ten.txt"), QByteArray("word ").repeated(10));
    list(QStringLiteral("two.txt"), QByteArray("word ").repeated(2));
    open();
    EXPECT_TRUE(becomes(2, "Words", "2"));
    EXPECT_TRUE(becomes(1, "Words", "10"));
    EXPECT_THAT(names(), ElementsAre("nine.txt", "ten.txt", "two.txt"));
    table().sortByColumn(columnOf("Words"), Qt::AscendingOrder);
    EXPECT_THAT(names(), ElementsAre("two.txt", "nine.txt", "ten.txt"));
    control<QLineEdit>("filterEdit").setText(QStringLiteral("T"));
    EXPECT_THAT(names(), ElementsAre("two.txt", "nine.txt", "ten.txt"));
    control<QLineEdit>("filterEdit").setText(QStringLiteral("NINE"));
    EXPECT_THAT(names(), ElementsAre("nine.txt"));
    EXPECT_THAT(
        control<QLabel>("totalLabel").text().toStdString(), HasSubstr("All documents (1) · Words: 9"));
}

TEST_F(DocumentsPageTest, TheUsersOrderIsStored)
{
    list(QStringLiteral("a.txt"), "one");
    list(QStringLiteral("b.txt"), "one");
    open();
    table().selectRow(1);
    click("upButton");
    EXPECT_THAT(names(), ElementsAre("b.txt", "a.txt"));
    EXPECT_THAT(m_store.documents().value().front().path.toStdString(), HasSubstr("b.txt"));
    EXPECT_EQ(table().selectionModel()->selectedRows().value(0).row(), 0);
}

TEST_F(DocumentsPageTest, AGoalShowsItsProgress)
{
    const QByteArray path = list(QStringLiteral("a.txt"), "one two three");
    EXPECT_FALSE(m_store.setPlan(path, {.goal = Goal{.amount = 4}}));
    open();
    EXPECT_TRUE(becomes(0, "Progress", "75 %"));
    EXPECT_EQ(cell(0, "Goal"), "4 words");
    EXPECT_THAT(table().model()->index(0, 0).data(Qt::ToolTipRole).toString().toStdString(),
        HasSubstr("1 word remaining"));
    picture(QStringLiteral("documents-goal"));
}

TEST_F(DocumentsPageTest, RowsAreCopiedAsTextCsvAndHtml)
{
    list(QStringLiteral("a.txt"), "one two three");
    open();
    EXPECT_TRUE(becomes(0, "Words", "3"));
    click("copyButton");
    const QMimeData &copied = *QGuiApplication::clipboard()->mimeData();
    EXPECT_THAT(copied.text().toStdString(), HasSubstr("Name\tWords\t"));
    EXPECT_THAT(copied.data(QStringLiteral("text/csv")).toStdString(), HasSubstr("\"a.txt\","));
    EXPECT_THAT(copied.html().toStdString(), HasSubstr("<td>a.txt</td>"));
}

TEST_F(DocumentsPageTest, ShowOnTopOpensTheWatchWindowsOfTheSelectedRows)
{
    const QByteArray path = list(QStringLiteral("a.txt"), "one");
    open();
    EXPECT_FALSE(control<QPushButton>("showButton").isEnabled());
    table().selectRow(0);
    click("showButton");
    EXPECT_EQ(m_watched, QByteArrayList{path});
}

TEST_F(DocumentsPageTest, RemovingAsksFirst)
{
    list(QStringLiteral("a.txt"), "one");
    open();
    table().selectRow(0);
    const auto answer = [](QMessageBox::ButtonRole role) {
        QTimer::singleShot(0, [role] {
            auto *const box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            for (QAbstractButton *const button : box->buttons()) {
                if (box->buttonRole(button) == role)
                    button->click();
            }
        });
    };
    answer(QMessageBox::RejectRole);
    click("removeButton");
    EXPECT_THAT(names(), ElementsAre("a.txt"));
    answer(QMessageBox::AcceptRole);
    click("removeButton");
    EXPECT_TRUE(names().empty());
    EXPECT_TRUE(m_store.documents().value().empty());
}

TEST_F(DocumentsPageTest, FilesAndFoldersAreDropped)
{
    const QByteArray path = QFile::encodeName(writeFile(QStringLiteral("a.txt"), "one"));
    writeFile(QStringLiteral("book/one.md"), "one two");
    writeFile(QStringLiteral("book/part/two.md"), "one");
    writeFile(QStringLiteral("book/cover.png"), "");
    open();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(QFile::decodeName(path)),
        QUrl::fromLocalFile(world().root() + QStringLiteral("/files/book"))});
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&*m_page, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier, QEvent::Drop);
    QCoreApplication::sendEvent(&*m_page, &drop);
    EXPECT_THAT(names(), ::testing::UnorderedElementsAre("a.txt", "one.md", "two.md"));
}

TEST_F(DocumentsPageTest, TheHistoryCanBeSwitchedOff)
{
    open();
    EXPECT_TRUE(control<QCheckBox>("historyCheckBox").isChecked());
    control<QCheckBox>("historyCheckBox").click();
    EXPECT_FALSE(m_store.keepsHistory().value());
}

TEST_F(DocumentsPageTest, ABrokenStoreIsReportedAndRenewed)
{
    ASSERT_TRUE(QDir().mkpath(QFile::decodeName(m_store.path()) + QStringLiteral("/x")));
    open();
    EXPECT_THAT(
        control<QLabel>("stateLabel").text().toStdString(), HasSubstr("was damaged. It was renamed to"));
}
