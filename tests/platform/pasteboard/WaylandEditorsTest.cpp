// SPDX-License-Identifier: MIT
// Selections of native Wayland programs with GTK and with Qt.
#include "platform/pasteboard/WaylandSelection.h"
#include "platform/wayland/FocusedWindow.h"
#include "tests/platform/pasteboard/WaylandSelectionTest.h"

#include <QFileInfo>
#include <QLibraryInfo>

namespace {

class WaylandEditors : public WaylandSelectionTest {
protected:
    static bool hasQtPlugin()
    {
        return QFileInfo::exists(QLibraryInfo::path(QLibraryInfo::PluginsPath)
            + QStringLiteral("/platforms/libqwayland-generic.so"));
    }

    static void readWithFocus(SelectionName name, ChildProcess &editor)
    {
        WaylandConnection connection;
        WaylandSelection selection(connection, WaylandSelection::Access::FocusedProgram, name, 1 << 20);
        FocusedWindow window(connection);
        ASSERT_TRUE(window.takeFocus(QDeadlineTimer(20'000)));
        EXPECT_EQ(editor.readLine(), QByteArray("lost"));
        ASSERT_TRUE(selection.hasOwner());
        EXPECT_TRUE(selection.targets().value().contains("text/html"));
        EXPECT_EQ(selection.convert("text/plain;charset=utf-8").value().bytes,
            QByteArray("Four bold words, caf\xc3\xa9"));
    }
    static void expectText(SelectionName name, const QString &text)
    {
        EXPECT_TRUE(waitUntil([&] { return textOf(read(name)) == text; }))
            << textOf(read(name)).toStdString();
    }
};

} // namespace

TEST_F(WaylandEditors, OfGtkAreRead)
{
    ChildProcess editor(testProgram(QStringLiteral("editor_in_gtk")));
    editor.withVariable("NO_AT_BRIDGE", "1").start({});
    const QByteArray state = editor.readLine();
    SKIP_WITHOUT_PACKAGE(state != "missing", "gir1.2-gtk-3.0");
    ASSERT_EQ(state, QByteArray("focused"));
    TestCompositor::pressKey(); // selects and copies
    expectText(SelectionName::Primary, QStringLiteral("Four words of caf\u00e9"));
    expectText(SelectionName::Clipboard, QStringLiteral("Four words of caf\u00e9"));
}

TEST_F(WaylandEditors, OfQtAreRead)
{
    SKIP_WITHOUT_PACKAGE(hasQtPlugin(), "qt6-wayland");
    ChildProcess editor(testProgram(QStringLiteral("editor_in_qt")));
    editor.start({});
    ASSERT_EQ(editor.readLine(), QByteArray("focused"));
    TestCompositor::pressKey(); // selects and copies
    expectText(SelectionName::Primary, QStringLiteral("Four bold words, caf\u00e9"));
    expectText(SelectionName::Clipboard, QStringLiteral("Four bold words, caf\u00e9"));
    EXPECT_TRUE(formsOf(read()).contains(QStringLiteral("text/html")));
}

TEST_F(WaylandEditors, AWindowTakesTheFocusToReadThemAndGivesItBack)
{
    SKIP_WITHOUT_PACKAGE(hasQtPlugin(), "qt6-wayland");
    ChildProcess editor(testProgram(QStringLiteral("editor_in_qt")));
    editor.start({});
    ASSERT_EQ(editor.readLine(), QByteArray("focused"));
    TestCompositor::pressKey(); // selects and copies
    expectText(SelectionName::Clipboard, QStringLiteral("Four bold words, caf\u00e9"));
    for (const SelectionName name : {SelectionName::Primary, SelectionName::Clipboard}) {
        readWithFocus(name, editor);
        EXPECT_EQ(editor.readLine(), QByteArray("focused"));
    }
}
