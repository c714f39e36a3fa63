// SPDX-License-Identifier: MIT
// ProviderTest is the fixture of tests that use the whole program as the desktop does: the real service
// provider and the real counting service on a private bus, real windows on the private display. Thread: main.
#pragma once

#include "platform/services/ServiceMessageSender.h"
#include "tests/counting_service/CountingServiceTest.h"
#include "tests/harness/Display.h"
#include "tests/harness/Screenshot.h"

#include <QRect>
#include <QString>

class ProviderTest : public CountingServiceTest {
protected:
    ProviderTest();
    /// Ends the provider, and waits until it is gone.
    ~ProviderTest() override;

    /// Asks for the counts of a text, as the command does; what the service says of a failure, or an empty
    /// text.
    static QString count(const QString &text);
    static QString ask(const QString &message, const Pasteboard &pasteboard, const QVariantMap &options = {});

    /// The process that owns the provider's name; 0 where nobody does.
    [[nodiscard]] pid_t provider() const;
    /// Starts the provider without asking it for anything.
    void startProvider() const;
    void waitForEnd(pid_t process) const;

    /// The identifiers of the windows with that title on the screen, lowest first, as the window manager has
    /// them.
    static QStringList windows(const QString &title = QStringLiteral("Quillbay"));
    /// Waits until there are so many, and fails the test if there are not.
    static QStringList waitForWindows(qsizetype number, const QString &title = QStringLiteral("Quillbay"));
    /// In pixels from the top left.
    static QRect rectOf(const QString &window);
    static QString activeWindow();
    /// Puts the pointer there, in pixels of the window from its top left, and clicks.
    static void click(const QString &window, int x, int y);
    static void press(const char *key);
    /// By 120 pixels to the right and 60 up, as far as it comes. place: in the window, from its top left.
    static void drag(const QString &window, const QPoint &place);

    /// Waits until the window shows numbers.
    static void waitForNumbers(const QString &window);
    /// What Ctrl+C gives in the active window.
    static QString copied();
};
