// SPDX-License-Identifier: MIT
// The real program on a real display. This test plays the program whose windows have closed, and those that
// copy and paste afterwards.
#include "platform/views/widgets/ClipboardHandOver.h"
#include "tests/platform/pasteboard/SelectionTest.h"
#include "tests/platform/pasteboard/WaylandSelectionTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QWidget>
#include <QWindow>

namespace {

QString keeperProgram()
{
    return productProgram(QStringLiteral("quillbay-clipboard-keeper"));
}

QClipboard &clipboard()
{
    return *QGuiApplication::clipboard();
}

/// Copies when it is clicked: Qt owns the clipboard since the last click or key that it has seen, and the
/// server refuses an owner that comes from before the present one.
class StatisticsWindow : public QWidget {
public:
    StatisticsWindow()
    {
        setGeometry(100, 100, 200, 100);
        show();
    }
    void click()
    {
        m_isClicked = false;
        TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("150"), QStringLiteral("150"),
            QStringLiteral("click"), QStringLiteral("1")});
        EXPECT_TRUE(waitUntil([this] { return m_isClicked; }));
    }

protected:
    void mousePressEvent(QMouseEvent * /*event*/) override
    {
        auto forms = std::make_unique<QMimeData>();
        forms->setText(QStringLiteral("-Words: 3 – é"));
        forms->setHtml(QStringLiteral("<p>-Words: 3 – é</p>"));
        clipboard().setMimeData(forms.release());
        m_isClicked = true;
    }

private:
    bool m_isClicked = false;
};

class ClipboardKeeper : public SelectionTest {
protected:
    ClipboardKeeper()
    {
        EXPECT_TRUE(waitUntil([this] { return m_window.windowHandle()->isExposed(); }));
    }
    /// Ends the keeper of this test.
    ~ClipboardKeeper() override { const SelectionOwner another("CLIPBOARD", {}); }

    void copyStatistics()
    {
        m_window.click();
        EXPECT_TRUE(clipboard().ownsClipboard());
    }
    /// Returns once the keeper owns what this process has copied.
    void startKeeper()
    {
        copyStatistics();
        bool hasNewOwner = false;
        QObject::connect(&clipboard(), &QClipboard::dataChanged, &m_window, [&] { hasNewOwner = true; });
        m_keeper.start({});
        EXPECT_TRUE(waitUntil([&] { return hasNewOwner; }));
        QObject::disconnect(&clipboard(), nullptr, &m_window, nullptr);
    }
    [[nodiscard]] int exitStatus() { return m_keeper.finish().exitStatus; }

    StatisticsWindow m_window;
    ChildProcess m_keeper{keeperProgram()};
};

class WaylandClipboardKeeper : public WaylandSelectionTest { };

} // namespace

TEST_F(ClipboardKeeper, KeepsEveryFormOfTheText)
{
    startKeeper();
    const Pasteboard::Forms forms = formsOf(read(SelectionName::Clipboard));
    EXPECT_EQ(forms.at(QStringLiteral("text/plain;charset=utf-8")), QByteArray("-Words: 3 – é"));
    EXPECT_EQ(clipboard().text(), QStringLiteral("-Words: 3 – é"));
    EXPECT_EQ(clipboard().mimeData()->html(), QStringLiteral("<p>-Words: 3 – é</p>"));
    EXPECT_FALSE(clipboard().mimeData()->hasImage()) << "other forms are refused";
}

TEST_F(WaylandClipboardKeeper, TakesOverFromAProgramAndGivesWayToTheNext)
{
    std::optional<WaylandOwner> window(std::in_place, "clipboard",
        SelectionOwner::Forms{{"text/plain", "-Words: 3"}, {"text/html", "<p>-Words: 3"}});
    ChildProcess keeper(keeperProgram());
    keeper.start({});
    window->waitForExit(); // once it has lost the clipboard
    window.reset();
    const Pasteboard::Forms kept = formsOf(read(SelectionName::Clipboard));
    EXPECT_EQ(kept.at(QStringLiteral("text/plain;charset=utf-8")), QByteArray("-Words: 3"));
    EXPECT_EQ(kept.at(QStringLiteral("text/html")), QByteArray("<p>-Words: 3"));
    const WaylandOwner other("clipboard", {{"text/plain", "something else"}});
    EXPECT_EQ(keeper.finish().exitStatus, 0);
    EXPECT_EQ(textOf(read(SelectionName::Clipboard)), QStringLiteral("something else"));
}

TEST_F(ClipboardKeeper, EndsWhenAnotherProgramCopies)
{
    startKeeper();
    const SelectionOwner other("CLIPBOARD", {{"UTF8_STRING", "something else"}});
    EXPECT_EQ(exitStatus(), 0);
    EXPECT_EQ(clipboard().text(), QStringLiteral("something else"));
}

TEST_F(ClipboardKeeper, TheNextKeeperTakesOverFromTheFirst)
{
    startKeeper();
    ChildProcess next(keeperProgram());
    next.start({});
    EXPECT_EQ(exitStatus(), 0);
    EXPECT_EQ(clipboard().text(), QStringLiteral("-Words: 3 – é"));
}

TEST_F(ClipboardKeeper, EndsOnceAClipboardManagerHasSavedTheContent)
{
    const SelectionOwner manager("CLIPBOARD_MANAGER", {{"SAVE_TARGETS", ""}});
    startKeeper();
    EXPECT_EQ(exitStatus(), 0);
}

TEST_F(ClipboardKeeper, AManagerThatRefusesLeavesTheContentToTheKeeper)
{
    const SelectionOwner manager("CLIPBOARD_MANAGER", {{"SAVE_TARGETS", SelectionOwner::refused()}});
    startKeeper();
    EXPECT_EQ(textOf(read(SelectionName::Clipboard)), QStringLiteral("-Words: 3 – é"));
}

TEST_F(ClipboardKeeper, EndsWithoutATextToKeep)
{
    const SelectionOwner empty("CLIPBOARD", {{"image/png", "PNG"}});
    EXPECT_EQ(ChildProcess(keeperProgram()).run({}).exitStatus, 1);
    const SelectionOwner large("CLIPBOARD", {{"UTF8_STRING", QByteArray(65 * 1024, 'a')}});
    EXPECT_EQ(ChildProcess(keeperProgram()).run({}).exitStatus, 1);
}

TEST_F(ClipboardKeeper, EndsWithoutADisplayAndTakesNoArguments)
{
    ChildProcess withoutDisplay(keeperProgram());
    withoutDisplay.withoutVariable("DISPLAY");
    EXPECT_EQ(withoutDisplay.run({}).exitStatus, 1);
    EXPECT_EQ(ChildProcess(keeperProgram()).run({"--help"}).exitStatus, 2);
}

TEST_F(ClipboardKeeper, AProgramThatExitsHandsOver)
{
    copyStatistics();
    ClipboardHandOver::finish(keeperProgram());
    EXPECT_FALSE(clipboard().ownsClipboard());
    EXPECT_EQ(clipboard().text(), QStringLiteral("-Words: 3 – é"));
}

TEST_F(ClipboardKeeper, AProgramThatHasCopiedNothingStartsNoKeeper)
{
    const SelectionOwner other("CLIPBOARD", {{"UTF8_STRING", "of another program"}});
    EXPECT_TRUE(waitUntil([] { return !clipboard().ownsClipboard(); }));
    ClipboardHandOver::finish(QStringLiteral("/missing/keeper"));
    EXPECT_EQ(clipboard().text(), QStringLiteral("of another program"));
}

TEST_F(ClipboardKeeper, AProgramWaitsForNoKeeperThatIsMissing)
{
    const RecordingLogSink log;
    copyStatistics();
    ClipboardHandOver::finish(QStringLiteral("/missing/keeper"));
    EXPECT_TRUE(clipboard().ownsClipboard());
    ASSERT_EQ(log.messages(LogLevel::Error).size(), 1);
    EXPECT_TRUE(
        log.messages(LogLevel::Error).constFirst().startsWith(QStringLiteral("What was copied is lost")));
}
