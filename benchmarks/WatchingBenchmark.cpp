// SPDX-License-Identifier: MIT
// The watched document with the real clock: how long after the end of a save its text is reported, and how
// much processor time a poll of an unchanged document takes.
#include "documents/loading/DocumentLoader.h"
#include "platform/file_coordination/ChangePolicy.h"
#include "watching/WatchTextFileModel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include <ctime>
#include <sys/file.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int saves = 100;
constexpr std::chrono::milliseconds pauseBetweenSaves{250}; // longer than changes are collected

class LastText final : public WatchTextFileModelDelegate {
public:
    void currentlyWatchedTextFileDidUpdateWithAttributedString(
        const AttributedString &attributedString, WatchTextFileModel & /*watchModel*/) override
    {
        text = attributedString;
        if (whenTold)
            whenTold();
    }
    void currentlyWatchedTextFileDidFailToLoadAttribedText(WatchTextFileModel & /*watchModel*/) override
    {
        std::puts("the document could not be read");
        std::exit(1);
    }
    void currentlyWatchedDocXFileDidUpdateWithDocxData(
        const QUrl & /*docxData*/, WatchTextFileModel & /*watchModel*/) override
    {
    }

    AttributedString text;
    std::function<void()> whenTold;
};

QByteArray contentsOf(qsizetype size, int number)
{
    const QByteArray line = "The ferry had left an hour ago, and nobody on the quay could say when the next "
                            "would come.\n";
    QByteArray contents = QByteArray::number(number).rightJustified(10, '0') + '\n';
    contents += line.repeated(size / line.size() + 1);
    contents.truncate(size);
    return contents;
}

void write(const QString &path, const QByteArray &contents)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        std::exit(1);
}

void writeInPlace(const QString &path, const QByteArray &contents)
{
    write(path, contents);
}

void renameOver(const QString &path, const QByteArray &contents)
{
    write(path + u'~', contents);
    if (std::rename(QFile::encodeName(path + u'~').constData(), QFile::encodeName(path).constData()) != 0)
        std::exit(1);
}

struct Mode {
    const char *name;
    void (*save)(const QString &path, const QByteArray &contents);
};

/// Milliseconds from the end of a save to its text.
double measureSave(const Mode &mode, const QString &path, const QByteArray &contents, LastText &told)
{
    QEventLoop loop;
    QElapsedTimer timer;
    double milliseconds = 0;
    told.whenTold = [&] {
        milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        if (told.text.length() == contents.size()
            && told.text.string().startsWith(QString::fromLatin1(contents.first(10))))
            loop.quit();
    };
    mode.save(path, contents);
    timer.start();
    loop.exec();
    told.whenTold = nullptr;
    QTimer::singleShot(pauseBetweenSaves, &loop, &QEventLoop::quit);
    loop.exec();
    return milliseconds;
}

void measureSaves(const Mode &mode, const char *sizeName, qsizetype size, const QString &path)
{
    write(path, contentsOf(size, 0));
    ApplicationActivity activity(true);
    LastText told;
    WatchTextFileModel model(QUrl::fromLocalFile(path), &told, activity);
    model.beginWatchingTextFile();
    std::vector<double> times;
    for (int save = 1; save <= saves; ++save)
        times.push_back(measureSave(mode, path, contentsOf(size, save), told));
    std::sort(times.begin(), times.end());
    std::printf("save to text, %-12s %-6s median %7.2f ms, 99th of 100 %7.2f ms\n", mode.name, sizeName,
        times[saves / 2], times[saves - 2]);
    std::fflush(stdout);
}

/// A watched document that its writer keeps locked, like word processors while it is open.
struct LockedDocument {
    explicit LockedDocument(const QString &path)
        : writer(path)
        , model(QUrl::fromLocalFile(path), &told, activity)
    {
        if (!writer.open(QIODevice::ReadWrite | QIODevice::Unbuffered)
            || ::flock(writer.handle(), LOCK_EX) != 0)
            std::exit(1);
        model.beginWatchingTextFile();
    }
    void save() { writer.write("and another line\n"); }

    QFile writer;
    ApplicationActivity activity{true};
    LastText told;
    WatchTextFileModel model;
};

/// The unlocked document loses its name for 100 ms, while changes of the locked ones are reported.
std::vector<double> timesOfSavesBeside(
    const std::vector<std::unique_ptr<LockedDocument>> &locked, const QString &path)
{
    constexpr int rounds = 20;
    constexpr std::chrono::milliseconds removal = ChangePolicy::quiet - std::chrono::milliseconds(10);
    write(path, contentsOf(10'000, 0));
    ApplicationActivity activity(true);
    LastText told;
    WatchTextFileModel model(QUrl::fromLocalFile(path), &told, activity);
    model.beginWatchingTextFile();
    std::vector<double> times;
    for (int save = 1; save <= rounds; ++save) {
        const QByteArray contents = contentsOf(10'000, save);
        QElapsedTimer timer;
        QEventLoop loop;
        QTimer::singleShot(removal, &loop, [&] {
            QFile::remove(path);
            model._nsTimerForceRead(); // a poll during the save
        });
        QTimer::singleShot(removal + std::chrono::milliseconds(100), &loop, [&] {
            write(path, contents);
            timer.start();
        });
        told.whenTold = [&] {
            if (!told.text.string().startsWith(QString::fromLatin1(contents.first(10))))
                return;
            times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
            loop.quit();
        };
        for (const auto &document : locked)
            document->save();
        loop.exec();
        told.whenTold = nullptr;
        QTimer::singleShot(pauseBetweenSaves, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return times;
}

void measureSavesBesideLocked(int count, const QTemporaryDir &folder)
{
    std::vector<std::unique_ptr<LockedDocument>> locked;
    for (int i = 0; i < count; ++i) {
        const QString path = folder.filePath(QStringLiteral("locked%1.txt").arg(i));
        write(path, contentsOf(10'000, i));
        locked.push_back(std::make_unique<LockedDocument>(path));
    }
    std::vector<double> times = timesOfSavesBeside(locked, folder.filePath(QStringLiteral("free.txt")));
    std::sort(times.begin(), times.end());
    std::printf("save to text beside %d locked documents: median %7.2f ms, longest %7.2f ms\n", count,
        times[times.size() / 2], times.back());
    std::fflush(stdout);
}

double processorMilliseconds()
{
    timespec time{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

double processorTimeOf(const std::function<void()> &action)
{
    constexpr int times = 100;
    const double start = processorMilliseconds();
    for (int i = 0; i < times; ++i)
        action();
    return (processorMilliseconds() - start) / times;
}

void measurePolls(const char *kind, const QString &path, const QByteArray &contents)
{
    write(path, contents);
    ApplicationActivity activity(true);
    LastText told;
    WatchTextFileModel model(QUrl::fromLocalFile(path), &told, activity);
    model.beginWatchingTextFile();
    model.forceRead(nullptr);
    const double poll = processorTimeOf([&] { model._nsTimerForceRead(); });
    const double load = processorTimeOf([&] { (void)loadDocument(QFile::encodeName(path)); });
    std::printf(
        "poll of an unchanged %s: %.2f ms of processor time; loading it anew: %.2f ms\n", kind, poll, load);
    std::fflush(stdout);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("f.txt"));
    for (const int locked : {0, 6})
        measureSavesBesideLocked(locked, folder);
    measurePolls("text of 1 MB", path, contentsOf(1'000'000, 0));
    measurePolls("RTF of 1 MB", folder.filePath(QStringLiteral("f.rtf")),
        "{\\rtf1 " + contentsOf(1'000'000, 0).replace("\n", "\\par\n").replace("ferry", "{\\b ferry}") + '}');
    for (const Mode &mode : {Mode{"in place", writeInPlace}, Mode{"renamed over", renameOver}}) {
        measureSaves(mode, "10 kB", 10'000, path);
        measureSaves(mode, "1 MB", 1'000'000, path);
        measureSaves(mode, "10 MB", 10'000'000, path);
    }
    return 0;
}
