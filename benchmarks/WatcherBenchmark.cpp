// SPDX-License-Identifier: MIT
// Watchers with their windows and the real counting service: how long after a save the label shows its words;
// what processor time a hundred watchers of 1 MB each take in a minute in which nothing changes, while the
// application is active and while it is not; what memory one and a hundred take. Run it by
//
//     export XDG_DATA_DIRS=build/release/share:/usr/share
//     xvfb-run dbus-run-session -- build/release/bin/watcher_benchmark [SAVES [SECONDS [TEXT]]]
//
// TEXT is a text in UTF-8; without it, the words are made up. No SECONDS, no watchers at rest.
#include "benchmarks/EditedText.h"
#include "platform/views/widgets/WidgetDesktop.h"
#include "watching/windows/WatchTextFileMenuBarController.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace {

constexpr std::chrono::milliseconds pauseBetweenSaves{250}; // longer than changes are collected

/// Checks the condition after every event.
template <typename Condition>
void wait(const Condition &condition)
{
    while (!condition())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void pass(std::chrono::milliseconds duration)
{
    QEventLoop loop;
    QTimer::singleShot(duration, &loop, &QEventLoop::quit);
    loop.exec();
}

double secondsOf(const timeval &time)
{
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Of a process and its children that have exited.
double processorSeconds(qint64 process)
{
    QFile file(QStringLiteral("/proc/%1/stat").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray status = file.readAll();
    const QByteArrayList rest = status.mid(status.lastIndexOf(')') + 2).split(' ');
    double ticks = 0;
    for (int field = 11; field <= 14; ++field)
        ticks += rest.value(field).toDouble();
    return ticks / static_cast<double>(sysconf(_SC_CLK_TCK));
}

/// Of this process, and of the counting service with its workers.
struct ProcessorTime {
    double own = 0;
    double service = 0;

    static ProcessorTime now()
    {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        ProcessorTime time{secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime), 0};
        const QDBusReply<uint> service =
            QDBusConnection::sessionBus().interface()->servicePid(WordCounterServiceProtocol::serviceName());
        if (!service.isValid())
            return time;
        time.service = processorSeconds(service.value());
        QFile children(QStringLiteral("/proc/%1/task/%1/children").arg(service.value()));
        if (children.open(QIODevice::ReadOnly)) {
            for (const QByteArray &child : children.readAll().split(' '))
                time.service += child.isEmpty() ? 0 : processorSeconds(child.toLongLong());
        }
        return time;
    }
};

double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

class Benchmark {
public:
    explicit Benchmark(QString text)
        : m_text(std::move(text))
    {
    }

    /// Every save adds a word to one of the paragraphs.
    void measureSaves(qint64 size, int saves)
    {
        const QString path = m_folder.filePath(QStringLiteral("novel.txt"));
        EditedText text(m_text, size);
        text.saveAs(path);
        const auto watcher = watch(path);
        wait([&] { return !statisticsOf(*watcher).isAsyncCountOperationInProgress(); });
        std::vector<double> times;
        for (int i = 0; i < saves; ++i) {
            pass(pauseBetweenSaves);
            const QString before = wordsOf(*watcher);
            text.edit();
            text.saveAs(path);
            QElapsedTimer timer;
            timer.start();
            wait([&] { return wordsOf(*watcher) != before; });
            times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
            wait([&] { return !statisticsOf(*watcher).isAsyncCountOperationInProgress(); });
        }
        std::ranges::sort(times);
        std::printf(
            "%9lld bytes, %d saves: shortest %.1f ms, median %.1f ms, 99th of 100 %.1f ms, slowest %.1f ms\n",
            static_cast<long long>(size), saves, times.front(), times[times.size() / 2],
            times[times.size() * 98 / 100], times.back());
        std::fflush(stdout);
    }

    void measureIdle(int number, int seconds)
    {
        const double before = residentMegabytes();
        std::vector<std::shared_ptr<WatchTextFileMenuBarController>> watchers;
        const auto add = [&] {
            const QString path = m_folder.filePath(QStringLiteral("chapter%1.txt").arg(watchers.size()));
            EditedText(m_text, 1'000'000).saveAs(path);
            watchers.push_back(watch(path));
        };
        const auto allRest = [&] {
            return std::ranges::none_of(watchers,
                [](const auto &watcher) { return statisticsOf(*watcher).isAsyncCountOperationInProgress(); });
        };
        add();
        wait(allRest);
        const double withOne = residentMegabytes();
        while (watchers.size() < static_cast<size_t>(number)) {
            add();
            wait(allRest);
        }
        std::printf("memory: %.0f MB without a watcher, %.0f with 1, %.0f with %d\n", before, withOne,
            residentMegabytes(), number);
        printProcessorTime("active", seconds);
        m_activity.setActive(false);
        pass(std::chrono::seconds(15)); // each is counted once more, and its time stamps become old
        printProcessorTime("not active, polling", seconds);
        m_activity.setActive(true);
        wait(allRest);
        std::printf("memory behind that: %.0f MB\n", residentMegabytes());
    }

private:
    std::shared_ptr<WatchTextFileMenuBarController> watch(const QString &path)
    {
        const auto watcher = WatchTextFileMenuBarController::initWithoutMenuItem(
            {.desktop = m_desktop, .applicationActivity = m_activity});
        watcher->watchWithTextFileURL(QUrl::fromLocalFile(path));
        watcher->showWindow();
        return watcher;
    }
    static WordCounterViewController &statisticsOf(const WatchTextFileMenuBarController &watcher)
    {
        return *watcher.watchTextFileViewControllerForPopover()->wordCounterViewController();
    }
    static QString wordsOf(const WatchTextFileMenuBarController &watcher)
    {
        return statisticsOf(watcher).wordCountTextField()->stringValue();
    }
    static void printProcessorTime(const char *state, int seconds)
    {
        const ProcessorTime before = ProcessorTime::now();
        pass(std::chrono::seconds(seconds));
        const ProcessorTime after = ProcessorTime::now();
        std::printf("%s, %d s: %.2f s of processor time here, %.2f s in the counting service\n", state,
            seconds, after.own - before.own, after.service - before.service);
        std::fflush(stdout);
    }

    const QString m_text; ///< a path, or empty
    QTemporaryDir m_folder;
    WidgetDesktop m_desktop;
    ApplicationActivity m_activity{true};
};

} // namespace

int main(int argumentCount, char **arguments)
{
    const QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList words = QApplication::arguments();
    const int saves = words.size() > 1 ? words[1].toInt() : 100;
    const int seconds = words.size() > 2 ? words[2].toInt() : 60;
    Benchmark benchmark(words.value(3));
    for (const qint64 size : {1'000'000, 10'000'000})
        benchmark.measureSaves(size, saves);
    if (seconds > 0)
        benchmark.measureIdle(100, seconds);
    return 0;
}
