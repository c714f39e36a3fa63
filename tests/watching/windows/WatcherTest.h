// SPDX-License-Identifier: MIT
// WatcherTest is the fixture of the tests of watchers: a document, a counting service with planned answers, a
// desktop and a tray without a screen, a fake clock, a speech command that records its arguments.
// Thread: main.
#pragma once

#include "tests/harness/QuillbayTest.h"
#include "tests/platform/file_coordination/FakeClock.h"
#include "tests/platform/session_bus/ServiceStandIn.h"
#include "tests/platform/views/FakeDesktop.h"
#include "tests/platform/views/FakeStatusBar.h"
#include "tests/presentation/StatsPanel.h"
#include "watching/windows/WatchTextFileMenuBarController.h"

#include <QCoreApplication>
#include <QDir>

/// Owns the watchers, like the program's delegate.
class WatcherRegistry : public WatchTextFileMenuBarControllerDelegate {
public:
    void watchTextFileMenuBarControllerDidFinish(WatchTextFileMenuBarController &controller) override
    {
        ++finished;
        std::erase_if(watchers, [&](const auto &known) { return known.get() == &controller; });
    }

    std::vector<std::shared_ptr<WatchTextFileMenuBarController>> watchers;
    int finished = 0;
};

class WatcherTest : public QuillbayTest {
protected:
    using Controller = WatchTextFileMenuBarController;

    WatcherTest() { preferOnly(everyStatistic); }
    /// Destroys all watchers before what they refer to; pending work holds some.
    ~WatcherTest() override
    {
        m_clock.advance(Controller::popoverDelay);
        m_registry.watchers.clear();
        QCoreApplication::processEvents();
    }

    void serve(const QByteArrayList &plan)
    {
        m_service.emplace(WordCounterServiceProtocol::serviceName(), plan);
    }

    Controller &makeWindowForm() { return keep(Controller::initWithoutMenuItem(m_surroundings)); }
    Controller &makeStatusItemForm() { return keep(Controller::init(m_surroundings)); }
    /// A window that watches the file and shows its first counts.
    Controller &watch(const QString &path)
    {
        Controller &watcher = makeWindowForm();
        watcher.watchWithTextFileURL(QUrl::fromLocalFile(path));
        watcher.showWindow();
        waitForCount(watcher);
        return watcher;
    }
    static void waitForCount(const Controller &watcher)
    {
        const auto &statistics = statisticsOf(watcher);
        EXPECT_TRUE(waitUntil([&] { return !statistics.isAsyncCountOperationInProgress(); }));
    }

    /// Processes pending events and lets time pass.
    void pass(std::chrono::milliseconds duration = std::chrono::seconds(1))
    {
        QCoreApplication::processEvents();
        m_clock.advance(duration);
        QCoreApplication::processEvents();
    }
    /// Waits until the alert of a failure is open.
    void waitForAlert()
    {
        EXPECT_TRUE(waitUntil([this] {
            m_clock.advance(std::chrono::milliseconds(100));
            return m_desktop.numberOfAlerts() > 0;
        }));
    }

    static WordCounterViewController &statisticsOf(const Controller &watcher)
    {
        return *watcher.watchTextFileViewControllerForPopover()->wordCounterViewController();
    }
    /// A panel's text for the word count.
    static QString wordsOf(const WatchTextFileViewController &panel)
    {
        return panel.wordCounterViewController()->wordCountTextField()->stringValue();
    }
    static QString titleOf(const WatchTextFileViewController &panel)
    {
        return panel.titleForFileBeingWatchedLabel()->stringValue();
    }
    [[nodiscard]] static QString pathOf(const QString &name)
    {
        return world().root() + QStringLiteral("/files/") + name;
    }

    /// Makes a program that records its arguments the speech command.
    void speakInto(const QString &notes)
    {
        const QString command = writeFile(QStringLiteral("say"),
            "#!/bin/sh\nprintf '%s:%s\\n' \"$#\" \"$1\" >> '" + QFile::encodeName(notes) + "'\n");
        QFile::setPermissions(command, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        m_surroundings.speechLaunchPath = command;
        QBYUserDefaultsController::setSayWordCountOutLoudOnSaveInWatchFileMode(true);
    }

    std::optional<ServiceStandIn> m_service;
    RecordingLogSink m_log;
    FakeClock m_clock;
    FakeDesktop m_desktop;
    FakeStatusBar m_statusBar;
    ApplicationActivity m_activity{true};
    WatchSurroundings m_surroundings{m_desktop, m_activity, &m_statusBar, m_clock};
    WatcherRegistry m_registry;
    const QString m_path = writeFile(QStringLiteral("novel.txt"), "One two three.");

private:
    Controller &keep(const std::shared_ptr<Controller> &watcher)
    {
        watcher->setDelegate(&m_registry);
        m_registry.watchers.push_back(watcher);
        return *watcher;
    }
};
