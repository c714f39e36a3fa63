// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WidgetDesktop.h"

#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/views/widgets/OtherProgram.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

template <typename Dialog>
Dialog *shownDialog()
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        auto *const dialog = qobject_cast<Dialog *>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

template <typename Dialog>
Dialog *waitForDialog()
{
    Dialog *dialog = nullptr;
    EXPECT_TRUE(waitUntil([&] {
        dialog = shownDialog<Dialog>();
        return dialog && dialog->windowHandle()->isExposed();
    }));
    return dialog;
}

/// Whether the display sends keys to the dialog. Qt reports a modal dialog as active as soon as it is shown.
bool hasKeyboard(const QDialog &dialog)
{
    return TestDisplay::outputOf(QStringLiteral("xdotool"), {QStringLiteral("getwindowfocus")}).trimmed()
        == QByteArray::number(dialog.winId());
}

/// Makes the window manager give the dialog the focus, like a click on its title bar.
void activate(const QDialog &dialog)
{
    EXPECT_TRUE(waitUntil([&] {
        TestDisplay::xdotool({QStringLiteral("windowactivate"), QString::number(dialog.winId())});
        return hasKeyboard(dialog);
    }));
}

void press(const char *key)
{
    TestDisplay::xdotool({QStringLiteral("key"), QString::fromLatin1(key)});
}

/// Counts the keys that the program receives.
class KeyCounter : public QObject {
public:
    explicit KeyCounter(int &keys)
        : m_keys(keys)
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        m_keys += event->type() == QEvent::KeyPress && watched->isWindowType();
        return false;
    }

private:
    int &m_keys;
};

class WidgetDesktopTest : public QuillbayTest {
protected:
    WidgetDesktopTest()
    {
        desktop.setAskingEndedHandler([this] { ++endings; });
    }

    void runAlert()
    {
        desktop.runAlert({QStringLiteral("Failed <b>here</b>."), QStringLiteral("Why <i>& how</i>."),
                             {QStringLiteral("Close"), QStringLiteral("Choose && more.")},
                             QStringLiteral("<h1>novel[*].txt")},
            [this](int button) { pressed.push_back(button); });
    }
    void beginOpenPanel(bool allowsMultipleSelection = false)
    {
        desktop.beginOpenPanel({.allowedFileTypes = {QStringLiteral("text/plain")},
                                   .allowsMultipleSelection = allowsMultipleSelection},
            [this](const std::optional<QList<QUrl>> &urls) { chosen.push_back(urls); });
    }

    FakeClock clock;
    WidgetDesktop desktop{clock};
    int endings = 0;
    std::vector<int> pressed;
    std::vector<std::optional<QList<QUrl>>> chosen;
};

} // namespace

TEST_F(WidgetDesktopTest, AlertsShowTheirButtonsInOrder)
{
    runAlert();
    EXPECT_TRUE(desktop.isAskingUser());
    EXPECT_THAT(pressed, IsEmpty()) << "it does not wait";
    const auto *const box = waitForDialog<QMessageBox>();
    EXPECT_EQ(box->text(), QStringLiteral("Failed <b>here</b>."));
    EXPECT_EQ(box->windowHandle()->title(), QStringLiteral("<h1>novel[*].txt"));
    for (const QLabel *const label : box->findChildren<QLabel *>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
    }
    EXPECT_EQ(box->informativeText(), QStringLiteral("Why <i>& how</i>."));
    EXPECT_EQ(box->windowModality(), Qt::ApplicationModal);
    QList<QPushButton *> buttons = box->findChildren<QPushButton *>();
    ASSERT_EQ(buttons.size(), 2);
    EXPECT_EQ(buttons[0]->text(), QStringLiteral("Close"));
    EXPECT_TRUE(buttons[0]->isDefault());
    EXPECT_LT(buttons[0]->x(), buttons[1]->x());
}

TEST_F(WidgetDesktopTest, AlertsReportThePressedButton)
{
    const std::vector<std::pair<const char *, int>> keys{{"Return", 0}, {"Escape", 1}, {"Tab", 1}};
    for (const auto &[key, button] : keys) {
        runAlert();
        clock.advance(WidgetDesktop::guardedTime);
        activate(*waitForDialog<QMessageBox>());
        QStringList presses{QStringLiteral("key"), QString::fromLatin1(key)};
        if (qstrcmp(key, "Tab") == 0)
            presses.append(QStringLiteral("Return"));
        TestDisplay::xdotool(presses);
        EXPECT_TRUE(waitUntil([&] { return !pressed.empty(); })) << key;
        EXPECT_THAT(pressed, ElementsAre(button)) << key;
        pressed.clear();
    }
    EXPECT_FALSE(desktop.isAskingUser());
    EXPECT_EQ(endings, 3);
}

TEST_F(WidgetDesktopTest, AnAlertTakesNoFocusAndDemandsAttention)
{
    const OtherProgram editor;
    editor.activate();
    EXPECT_TRUE(waitUntil([] { return !QGuiApplication::focusWindow(); }));
    runAlert();
    const QMessageBox &box = *waitForDialog<QMessageBox>();
    const auto property = [&](const char *name) {
        return TestDisplay::outputOf(QStringLiteral("xprop"),
            {QStringLiteral("-id"), QString::number(box.winId()), QString::fromLatin1(name)});
    };
    EXPECT_TRUE(waitUntil([&] {
        return property("_NET_WM_STATE").contains("_NET_WM_STATE_DEMANDS_ATTENTION");
    })) << property("_NET_WM_STATE").toStdString();
    EXPECT_THAT(property("_NET_WM_USER_TIME").toStdString(), testing::HasSubstr("= 0"));
    EXPECT_FALSE(hasKeyboard(box));
}

TEST_F(WidgetDesktopTest, NoKeyAnswersAnAlertInItsFirstSecond)
{
    runAlert();
    const QMessageBox &box = *waitForDialog<QMessageBox>();
    activate(box);
    int keys = 0;
    const KeyCounter counter(keys);
    clock.advance(WidgetDesktop::guardedTime - std::chrono::milliseconds(1));
    for (const char *const key : {"Return", "space", "Escape", "Tab", "x"})
        press(key);
    EXPECT_TRUE(waitUntil([&] { return keys == 5; }));
    EXPECT_THAT(pressed, IsEmpty());
    EXPECT_TRUE(box.isVisible());
    clock.advance(std::chrono::milliseconds(1));
    press("Return");
    EXPECT_TRUE(waitUntil([&] { return !pressed.empty(); }));
    EXPECT_THAT(pressed, ElementsAre(0)) << "the focus is where it was";
}

TEST_F(WidgetDesktopTest, AClickAnswersAnAlertAtOnce)
{
    runAlert();
    const QMessageBox &box = *waitForDialog<QMessageBox>();
    const auto *const button = box.findChildren<QPushButton *>().at(1);
    EXPECT_TRUE(waitUntil([&] {
        if (!pressed.empty())
            return true; // the button has been deleted
        const QPoint place = button->mapToGlobal(button->rect().center());
        TestDisplay::xdotool({QStringLiteral("mousemove"), QString::number(place.x()),
            QString::number(place.y()), QStringLiteral("click"), QStringLiteral("1")});
        return !pressed.empty();
    }));
    EXPECT_THAT(pressed, ElementsAre(1));
}

TEST_F(WidgetDesktopTest, AnAnswerMayAskTheNextQuestion)
{
    std::vector<int> answers;
    desktop.runAlert({QStringLiteral("First"), {}, {QStringLiteral("OK")}}, [&](int) {
        answers.push_back(1);
        desktop.runAlert(
            {QStringLiteral("Second"), {}, {QStringLiteral("OK")}}, [&](int) { answers.push_back(2); });
    });
    waitForDialog<QMessageBox>()->accept();
    EXPECT_TRUE(desktop.isAskingUser());
    EXPECT_EQ(endings, 0);
    EXPECT_TRUE(waitUntil([] {
        const auto *const box = shownDialog<QMessageBox>();
        return box && box->text() == QStringLiteral("Second");
    }));
    shownDialog<QMessageBox>()->accept();
    EXPECT_THAT(answers, ElementsAre(1, 2));
    EXPECT_EQ(endings, 1);
}

TEST_F(WidgetDesktopTest, ErrorsStayUntilTheUserClosesThem)
{
    desktop.presentError(QStringLiteral("No such program."));
    auto *const box = waitForDialog<QMessageBox>();
    EXPECT_EQ(box->text(), QStringLiteral("No such program."));
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    box->accept();
    EXPECT_FALSE(desktop.isAskingUser());
    EXPECT_EQ(endings, 1);
}

TEST_F(WidgetDesktopTest, EachErrorIsReportedOnce)
{
    const auto numberShown = [] {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        return std::ranges::count_if(widgets,
            [](QWidget *widget) { return qobject_cast<QMessageBox *>(widget) && widget->isVisible(); });
    };
    desktop.presentError(QStringLiteral("No such program."));
    desktop.presentError(QStringLiteral("No such program."));
    EXPECT_EQ(numberShown(), 1);
    desktop.presentError(QStringLiteral("No such file."));
    EXPECT_EQ(numberShown(), 2);
    while (auto *const box = shownDialog<QMessageBox>())
        box->accept();
    desktop.presentError(QStringLiteral("No such program."));
    EXPECT_EQ(numberShown(), 0) << "the user has read it";
    EXPECT_FALSE(desktop.isAskingUser());
}

TEST_F(WidgetDesktopTest, TheFileChooserReturnsTheChosenFile)
{
    const QString path = writeFile(QStringLiteral("a text.txt"), "text");
    beginOpenPanel();
    auto *const chooser = waitForDialog<QFileDialog>();
    EXPECT_TRUE(waitUntil([&] { return chooser->isActiveWindow(); })) << "the user has asked for it";
    EXPECT_EQ(chooser->fileMode(), QFileDialog::ExistingFile);
    EXPECT_NE(chooser->windowModality(), Qt::ApplicationModal);
    EXPECT_TRUE(desktop.isAskingUser());
    TestDisplay::xdotool({QStringLiteral("type"), path});
    EXPECT_TRUE(waitUntil([&] { return chooser->selectedFiles() == QStringList(path); }));
    TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("Return")});
    EXPECT_TRUE(waitUntil([&] { return !chosen.empty(); }));
    EXPECT_THAT(chosen, ElementsAre(QList<QUrl>{QUrl::fromLocalFile(path)}));
    EXPECT_EQ(endings, 1);
}

TEST_F(WidgetDesktopTest, TheFileChooserReturnsNothingIfTheUserCancels)
{
    beginOpenPanel();
    const QFileDialog &chooser = *waitForDialog<QFileDialog>();
    EXPECT_TRUE(waitUntil([&] { return chooser.isActiveWindow(); }));
    TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("Escape")});
    EXPECT_TRUE(waitUntil([&] { return !chosen.empty(); }));
    EXPECT_THAT(chosen, ElementsAre(std::nullopt));
}

TEST_F(WidgetDesktopTest, TheFileChooserAllowsSeveralFilesOnRequest)
{
    beginOpenPanel(true);
    EXPECT_EQ(waitForDialog<QFileDialog>()->fileMode(), QFileDialog::ExistingFiles);
}

TEST_F(WidgetDesktopTest, TheFileChooserOffersTheNamesOfTheTypesAndOfDerivedTypes)
{
    beginOpenPanel();
    const QString filter = waitForDialog<QFileDialog>()->nameFilters().join(u' ');
    for (const char *const pattern : {"*.txt", "*.rtf", "*.html", "*.cpp", "*.svg"})
        EXPECT_THAT(filter.toStdString(), testing::HasSubstr(pattern));
    EXPECT_THAT(filter.toStdString(), testing::Not(testing::HasSubstr("*.docx")));
    EXPECT_THAT(filter.toStdString(), testing::Not(testing::HasSubstr("*.png")));
}

TEST_F(WidgetDesktopTest, ClosesOpenDialogsWithoutAnswersAtTheEnd)
{
    {
        WidgetDesktop other;
        other.runAlert({QStringLiteral("Well?"), {}, {QStringLiteral("Yes")}},
            [this](int button) { pressed.push_back(button); });
        waitForDialog<QMessageBox>();
    }
    EXPECT_EQ(shownDialog<QMessageBox>(), nullptr);
    EXPECT_THAT(pressed, IsEmpty());
}

TEST_F(WidgetDesktopTest, KeepsAWindowOnTheScreenAsLongAsTheResultLives)
{
    const auto window = std::make_shared<KeyWindow>(QRectF(100, 200, 300, 150));
    std::unique_ptr<WindowOnScreen> onScreen = desktop.putOnScreen(window);
    const auto isShown = [&] {
        const QWidgetList widgets = QApplication::topLevelWidgets();
        return std::any_of(widgets.begin(), widgets.end(), [&](QWidget *widget) {
            const auto *const shown = qobject_cast<WindowWidget *>(widget);
            return shown && &shown->representedWindow() == window.get() && shown->isVisible();
        });
    };
    EXPECT_FALSE(isShown());
    window->orderFront();
    EXPECT_TRUE(isShown());
    onScreen.reset();
    EXPECT_FALSE(isShown());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window.use_count(), 1) << "nothing holds the window any more";
}

TEST_F(WidgetDesktopTest, KnowsThePointerAndTheWorkArea)
{
    TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("300"), QStringLiteral("100")});
    EXPECT_TRUE(waitUntil([&] { return desktop.pointerLocation() == QPointF(300, 800 - 100 - 1); }));
    EXPECT_EQ(desktop.visibleFrameAt({300, 699}), QRectF(0, 0, 1280, 800));
    EXPECT_EQ(desktop.visibleFrameAt({-5000, 9000}), QRectF(0, 0, 1280, 800)) << "the nearest screen";
}

TEST(WindowKeys, EscapeAndControlWAskTheWindowToClose)
{
    for (const char *const key : {"Escape", "ctrl+w"}) {
        ShownWindow shown({100, 200, 300, 150});
        shown.window().setClosesOnRequest(false);
        int requests = 0;
        QObject::connect(&shown.window(), &Window::closeRequested, &shown.widget(), [&] { ++requests; });
        shown.show();
        EXPECT_TRUE(waitUntil([&] { return shown.widget().isActiveWindow(); }));
        TestDisplay::xdotool({QStringLiteral("key"), QString::fromLatin1(key)});
        EXPECT_TRUE(waitUntil([&] { return requests == 1; })) << key;
        EXPECT_TRUE(shown.window().isVisible());
    }
}

TEST(WindowActivation, GivesTheTokenOfTheRequestToTheNextWindowOnly)
{
    WidgetDesktop desktop;
    const auto startupIdOf = [](const ShownWindow &shown) {
        return TestDisplay::outputOf(QStringLiteral("xprop"),
            {QStringLiteral("-id"), shown.identifier(), QStringLiteral("_NET_STARTUP_ID")});
    };
    desktop.setActivationToken("quillbay-1_TIME1");
    const ShownWindow first({100, 200, 300, 150});
    first.show();
    EXPECT_THAT(startupIdOf(first).toStdString(), testing::HasSubstr("\"quillbay-1_TIME1\""));
    const ShownWindow second({500, 200, 300, 150});
    second.show();
    EXPECT_THAT(startupIdOf(second).toStdString(), testing::HasSubstr("not found"));
}
