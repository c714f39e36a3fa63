// SPDX-License-Identifier: MIT
// Whether every text in every window goes through the translation.
#include "desk/DeskWindow.h"
#include "desk/why/WhyPage.h"
#include "front_end/QBYServiceProviderShowStatsWindowController.h"
#include "platform/views/widgets/WidgetDesktop.h"
#include "preferences/QBYUserDefaultsController.h"
#include "tests/harness/Display.h"
#include "tests/presentation/StatsPanel.h"
#include "tests/translations/MarkedTexts.h"
#include "tests/translations/ShownTexts.h"
#include "tests/watching/windows/WatcherTest.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTreeWidget>

namespace {

/// Fails for texts with letters outside of the marks. data: what the texts say about the user's documents,
/// and names.
void expectOnlyMarkedTexts(const QStringList &data = {})
{
    const std::vector<ShownText> texts = shownTexts();
    EXPECT_GT(texts.size(), 5U);
    for (const ShownText &shown : texts) {
        QString text = shown.text;
        for (const QString &known : data + QStringList{QStringLiteral("Quillbay")})
            text.remove(known);
        EXPECT_FALSE(MarkedTexts::hasUnmarkedLetters(text))
            << shown.where.toStdString() << ": " << shown.text.toStdString();
    }
}

class WindowTexts : public WatcherTest {
protected:
    WindowTexts() { preferOnly(everyStatistic); }
    ~WindowTexts() override
    {
        // Widgets that are to be deleted would show their texts to the next test.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    template <typename Dialog>
    static Dialog *shownDialog()
    {
        Dialog *dialog = nullptr;
        EXPECT_TRUE(waitUntil([&dialog] {
            for (QWidget *const widget : QApplication::topLevelWidgets()) {
                auto *const candidate = qobject_cast<Dialog *>(widget);
                if (candidate && candidate->isVisible())
                    dialog = candidate;
            }
            return dialog;
        }));
        return dialog;
    }

    const MarkedTexts m_marks;
};

} // namespace

TEST_F(WindowTexts, OfTheMainWindowAreTranslated)
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    DeskWindow window(QStringLiteral("/nonexistent/say"));
    window.show();
    expectOnlyMarkedTexts({QStringLiteral("/nonexistent/say")});
}

TEST_F(WindowTexts, OfTheMainWindowInUseAreTranslated)
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    DeskWindow window(QStringLiteral("/nonexistent/say"));
    window.show();
    window.findChild<QAbstractButton *>(QStringLiteral("restoreButton"))->click();
    window.findChild<QAbstractButton *>(QStringLiteral("sentencesCheckBox"))->click();
    EXPECT_TRUE(window.findChild<QAction *>(QStringLiteral("undoAction"))->isEnabled());
    window.openFiles({QUrl::fromLocalFile(writeFile(QStringLiteral("12.txt"), "1 & 2\n\n3."))});
    const auto *const reason = window.findChild<QLabel *>(QStringLiteral("reasonLabel"));
    EXPECT_TRUE(waitUntil([&] {
        window.findChild<QAbstractButton *>(QStringLiteral("nextButton"))->click();
        return !reason->text().isEmpty();
    }));
    expectOnlyMarkedTexts({QStringLiteral("/nonexistent/say"), QStringLiteral("12.txt")});
}

TEST_F(WindowTexts, OfTheMainWindowInTroubleAreTranslated)
{
    QBYUserDefaultsController::configureUserDefaultsOnApplicationLaunch();
    DeskWindow window(QStringLiteral("/nonexistent/say"));
    window.show();
    const auto *const state =
        window.findChild<WhyPage *>()->findChild<QLabel *>(QStringLiteral("stateLabel"));
    window.openFiles({QUrl::fromLocalFile(QStringLiteral("/12.txt"))});
    EXPECT_TRUE(waitUntil([&] { return state->text().contains(u':'); }));
    window.openFiles({QUrl(QStringLiteral("http://1.2/3"))});
    expectOnlyMarkedTexts(
        {QStringLiteral("/nonexistent/say"), QStringLiteral("12.txt"), QStringLiteral("http://1.2/3")});
}

TEST_F(WindowTexts, OfASelectedTextAreTranslated)
{
    serve({"answer 1 2 3 4 5 6 7 8"});
    WidgetDesktop desktop;
    const auto controller = std::make_shared<QBYServiceProviderShowStatsWindowController>(
        AttributedString(QStringLiteral("1 2 3")), desktop);
    controller->showWindow(nullptr);
    EXPECT_TRUE(waitUntil([&] { return !controller->activityIndicator()->isAnimating(); }));
    expectOnlyMarkedTexts();
    controller->closeButtonAction(nullptr);
}

TEST_F(WindowTexts, OfAWatchedFileAreTranslated)
{
    serve({"answer 1 2 3 4 5 6 7 8"});
    WidgetDesktop desktop;
    const auto watcher =
        Controller::initWithoutMenuItem({.desktop = desktop, .applicationActivity = m_activity});
    watcher->watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    watcher->showWindow();
    waitForCount(*watcher);
    expectOnlyMarkedTexts({QFileInfo(m_path).fileName()});
}

TEST_F(WindowTexts, OfTheAlertAndTheChooserAfterALostFileAreTranslated)
{
    serve({"answer 1 2 3 4 5 6 7 8"});
    WidgetDesktop desktop;
    const auto watcher =
        Controller::initWithoutMenuItem({.desktop = desktop, .applicationActivity = m_activity});
    watcher->watchWithTextFileURL(QUrl::fromLocalFile(m_path));
    watcher->showWindow();
    waitForCount(*watcher);
    QFile::remove(m_path);
    auto *const alert = shownDialog<QMessageBox>();
    ASSERT_TRUE(alert);
    expectOnlyMarkedTexts({QFileInfo(m_path).fileName()});
    alert->buttons().constLast()->click(); // chooses another file
    auto *const chooser = shownDialog<QFileDialog>();
    ASSERT_TRUE(chooser);
    const QStringList filters = chooser->nameFilters();
    EXPECT_EQ(filters.size(), 2);
    for (const QString &filter : filters)
        EXPECT_FALSE(MarkedTexts::hasUnmarkedLetters(filter)) << filter.toStdString();
    chooser->reject();
}
