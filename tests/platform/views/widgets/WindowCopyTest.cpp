// SPDX-License-Identifier: MIT
#include "platform/views/Controls.h"
#include "tests/platform/views/widgets/ShownWindow.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>

namespace {

const QString plainText = QStringLiteral("text/plain");
const QString html = QStringLiteral("text/html");

MimeContent twelveWords()
{
    return {{plainText, "12 words – é"}, {html, "<p>12 <b>words</b></p>"}};
}

const QMimeData &clipboard()
{
    return *QGuiApplication::clipboard()->mimeData();
}

} // namespace

TEST(WindowCopy, ControlCPutsAllFormsOnTheClipboard)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.window().setCopyProvider(twelveWords);
    shown.show();
    EXPECT_TRUE(waitUntil([&] { return shown.widget().isActiveWindow(); }));
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("ctrl+c")});
    EXPECT_TRUE(waitUntil([] { return clipboard().text() == QStringLiteral("12 words – é"); }));
    EXPECT_EQ(clipboard().html(), QStringLiteral("<p>12 <b>words</b></p>"));
}

TEST(WindowCopy, WithoutContentTheClipboardIsUnchanged)
{
    const ShownWindow shown({100, 200, 300, 150});
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    shown.widget().copy();
    EXPECT_EQ(clipboard().text(), QStringLiteral("before"));
    shown.window().setCopyProvider([] { return MimeContent(); });
    shown.widget().copy();
    EXPECT_EQ(clipboard().text(), QStringLiteral("before"));
}

TEST(WindowCopy, TheContextMenuOffersToCopy)
{
    ShownWindow shown({100, 200, 300, 150});
    shown.add<Label>("label", {50, 50, 100, 20}).setStringValue(QStringLiteral("12 words"));
    shown.window().setCopyProvider(twelveWords);
    shown.show();
    QGuiApplication::clipboard()->setText(QStringLiteral("before"));
    TestDisplay::xdotool(shown.pointerTo(60, 60) + QStringList{QStringLiteral("click"), QStringLiteral("3")});
    QMenu *menu = nullptr;
    EXPECT_TRUE(waitUntil([&] {
        menu = shown.widget().findChild<QMenu *>();
        return menu && menu->isVisible() && menu->windowHandle()->isExposed();
    }));
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().constFirst()->text(), QStringLiteral("&Copy"));
    TestDisplay::xdotool({QStringLiteral("key"), QStringLiteral("c")});
    EXPECT_TRUE(waitUntil([] { return clipboard().text() == QStringLiteral("12 words – é"); }));
    EXPECT_TRUE(waitUntil([&] { return !shown.widget().findChild<QMenu *>(); }));
}

TEST(WindowCopy, WithoutAProviderThereIsNoMenu)
{
    const ShownWindow shown({100, 200, 300, 150});
    QContextMenuEvent event(QContextMenuEvent::Mouse, {10, 10}, {110, 110});
    QCoreApplication::sendEvent(&shown.widget(), &event);
    EXPECT_EQ(shown.widget().findChild<QMenu *>(), nullptr);
}
