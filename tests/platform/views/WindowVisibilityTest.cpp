// SPDX-License-Identifier: MIT
#include "platform/views/Window.h"
#include "tests/harness/QuillbayTest.h"

namespace {

/// The names of the signals of a window in the order in which it sends them.
QStringList signalsOf(Window &window, const std::function<void()> &action)
{
    QStringList sent;
    const auto note = [&](void (Window::*signal)(), const char *name) {
        QObject::connect(&window, signal, &window, [&sent, name] { sent.append(QString::fromLatin1(name)); });
    };
    note(&Window::orderedFront, "front");
    note(&Window::orderedOut, "out");
    note(&Window::closeRequested, "asked");
    note(&Window::closed, "closed");
    note(&Window::levelDidChange, "level");
    note(&Window::titleDidChange, "title");
    note(&Window::copyProviderDidChange, "copy");
    action();
    window.disconnect();
    return sent;
}

QStringList names(const char *list)
{
    return QString::fromLatin1(list).split(u' ', Qt::SkipEmptyParts);
}

} // namespace

TEST(WindowVisibility, ANewWindowIsNotOnTheScreen)
{
    Window window;
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(signalsOf(window, [&] { window.orderOut(); }), names(""));
    EXPECT_EQ(signalsOf(window, [&] { window.close(); }), names(""));
}

TEST(WindowVisibility, AWindowCanComeToTheFrontRepeatedly)
{
    Window window;
    EXPECT_EQ(signalsOf(window,
                  [&] {
                      window.orderFront();
                      window.orderFront();
                  }),
        names("front front"));
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(signalsOf(window, [&] { window.orderOut(); }), names("out"));
    EXPECT_FALSE(window.isVisible());
}

TEST(WindowVisibility, AClosedWindowIsOffTheScreen)
{
    Window window;
    window.orderFront();
    EXPECT_EQ(signalsOf(window, [&] { window.close(); }), names("out closed"));
    EXPECT_FALSE(window.isVisible());
    window.orderFront();
    EXPECT_EQ(signalsOf(window, [&] { window.performClose(); }), names("asked out closed"));
}

TEST(WindowVisibility, AnOwnerMayKeepTheWindowOpen)
{
    Window window;
    window.setClosesOnRequest(false);
    window.orderFront();
    EXPECT_EQ(signalsOf(window, [&] { window.performClose(); }), names("asked"));
    EXPECT_TRUE(window.isVisible());
}

TEST(WindowVisibility, LevelAndTitleAreAnnouncedOnce)
{
    Window window;
    EXPECT_EQ(window.level(), WindowLevel::Normal);
    EXPECT_EQ(signalsOf(window,
                  [&] {
                      for (int i = 0; i < 2; ++i) {
                          window.setLevel(WindowLevel::Floating);
                          window.setTitle(QStringLiteral("Statistics"));
                      }
                  }),
        names("level title"));
}

TEST(WindowVisibility, CopiesWhatItsProviderGivesAtThatMoment)
{
    Window window;
    EXPECT_FALSE(window.canCopy());
    EXPECT_TRUE(window.contentToCopy().empty());
    const QString plainText = QStringLiteral("text/plain");
    QByteArray text = "1 word";
    EXPECT_EQ(
        signalsOf(window, [&] { window.setCopyProvider([&] {
                                    return MimeContent{{plainText, text}};
                                }); }),
        names("copy"));
    text = "2 words";
    EXPECT_TRUE(window.canCopy());
    EXPECT_EQ(window.contentToCopy(), (MimeContent{{plainText, "2 words"}}));
}
