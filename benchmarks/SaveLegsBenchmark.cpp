// SPDX-License-Identifier: MIT
// Each leg of the way from a saved file to its label, measured alone and in the order of the way: in
// milliseconds, the shortest and the median of many edits, and the shortest processor time in this process.
// What the way takes beyond their sum (watcher_benchmark measures the whole) is waiting for other threads and
// processes. Run it by
//
//     export XDG_DATA_DIRS=build/release/share:/usr/share
//     dbus-run-session -- build/release/bin/save_legs_benchmark [BYTES [EDITS [TEXT]]]
#include "benchmarks/EditedText.h"
#include "documents/loading/DocumentLoader.h"
#include "documents/reading/DocumentReader.h"
#include "documents/reading/KindDetection.h"
#include "documents/rtfd/RtfdWriter.h"
#include "platform/file_coordination/FileCoordinator.h"
#include "platform/files/FileContents.h"
#include "platform/system/ContentHash.h"
#include "platform/system/FileURL.h"
#include "platform/system/SealedMemory.h"
#include "presentation/WordCounterServiceProtocol.h"
#include "presentation/WordCounterViewController.h"
#include "text_statistics/WordCounterModel.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <future>
#include <vector>

namespace {

/// The times of all legs; a leg is known by its name, and printed in the order in which legs first came.
class Legs {
public:
    template <typename Work>
    auto measure(const char *leg, const Work &work)
    {
        const Time start = Time::now();
        auto result = work();
        const Time end = Time::now();
        add(leg, {end.real - start.real, end.processor - start.processor});
        return result;
    }

    void print() const
    {
        for (const Leg &leg : m_legs) {
            std::vector<Time> times = leg.times;
            std::ranges::sort(times, {}, &Time::processor);
            const double processor = times.front().processor;
            std::ranges::sort(times, {}, &Time::real);
            std::printf("%-26s %9.2f %9.2f %9.2f\n", leg.name, times.front().real,
                times[times.size() / 2].real, processor);
        }
    }

private:
    struct Time { // in milliseconds
        double real;
        double processor;

        static Time now()
        {
            const auto milliseconds = [](clockid_t clock) {
                timespec time{};
                ::clock_gettime(clock, &time);
                return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
            };
            return {milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_PROCESS_CPUTIME_ID)};
        }
    };
    struct Leg {
        const char *name;
        std::vector<Time> times;
    };

    void add(const char *name, const Time &time)
    {
        auto leg = std::ranges::find_if(m_legs, [name](const Leg &known) { return known.name == name; });
        if (leg == m_legs.end())
            leg = m_legs.insert(leg, {name, {}});
        leg->times.push_back(time);
    }

    std::vector<Leg> m_legs;
};

/// Follows the file as a watcher does, and waits for its changes.
class Presenter final : public FilePresenter {
public:
    explicit Presenter(const QString &path)
        : m_url(fileURLOfPath(path.toLocal8Bit()))
    {
        FileCoordinator::addFilePresenter(this);
    }

    [[nodiscard]] QUrl presentedItemURL() const override { return m_url; }
    void presentedItemDidChange() override { m_hasChanged = true; }
    void presentedItemDidMoveToURL(const QUrl & /*newURL*/) override { }
    void accommodatePresentedItemDeletionWithCompletionHandler(
        const CompletionHandler & /*completionHandler*/) override
    {
    }
    void relinquishPresentedItemToReader(const Block &reader) override
    {
        reader([] {});
    }
    void relinquishPresentedItemToWriter(const Block &writer) override
    {
        writer([] {});
    }

    bool waitForChange()
    {
        while (!m_hasChanged)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        m_hasChanged = false;
        return true;
    }

private:
    const QUrl m_url;
    bool m_hasChanged = false;
};

class Service {
public:
    Service()
    {
        m_connection.setRemoteObjectInterface(WordCounterServiceProtocol::interface());
        m_connection.resume();
    }

    [[nodiscard]] QBYWordCounterStats count(const std::shared_ptr<const SealedMemory> &data) const
    {
        // A connection that gives up a request destroys its handler, which breaks the promise.
        auto promise = std::make_shared<std::promise<QBYWordCounterStats>>();
        std::future<QBYWordCounterStats> answer = promise->get_future();
        const WordCounterServiceProtocol service(m_connection.remoteObjectProxy());
        service.countWordsForAttributedStringRTFDData(
            data, [promise](const QBYWordCounterStats &stats) { promise->set_value(stats); });
        promise.reset();
        try {
            return answer.get();
        } catch (const std::future_error &) {
            qFatal("the counting service does not answer; set XDG_DATA_DIRS");
        }
    }

private:
    RemoteObjectConnection m_connection{WordCounterServiceProtocol::serviceName()};
};

void waitUntilBurstIsOver()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 120) // changes are collected for less
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

void measureLegs(EditedText text, int edits)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("novel.txt"));
    text.saveAs(path);
    Presenter presenter(path);
    const Service service;
    WordCounterModel inWorker;
    inWorker.rememberParagraphs();
    const auto panel = std::make_shared<WordCounterViewController>();
    panel->view();
    Legs legs;
    for (int i = 0; i <= edits; ++i) {
        waitUntilBurstIsOver();
        text.edit();
        text.saveAs(path);
        legs.measure("event", [&] { return presenter.waitForChange(); });
        const QByteArray name = path.toLocal8Bit();
        const QByteArray bytes = legs.measure("read", [&] { return readFile(name).value(); });
        legs.measure("hash", [&] { return contentHash(bytes); });
        legs.measure("find out the kind", [&] { return kindOfDocument(name, bytes).value(); });
        const AttributedString decoded =
            legs.measure("decode", [&] { return readBytes(bytes, name, {.asText = true}).value(); });
        const QByteArray rtfd =
            legs.measure("write RTFD", [&] { return RTFDFromRange(decoded, 0, decoded.length()).value(); });
        const auto sealed = legs.measure("hand over",
            [&] { return std::make_shared<const SealedMemory>(SealedMemory::copyOf(rtfd).value()); });
        const AttributedString read = legs.measure(
            "read RTFD", [&] { return readDocument(DocumentKind::Rtfd, sealed->bytes()).value(); });
        legs.measure(i == 0 ? "count, first" : "count, after an edit", [&] {
            inWorker.setAttributedStringToCount(read);
            return true;
        });
        const QBYWordCounterStats stats =
            legs.measure(i == 0 ? "round trip, first" : "round trip, after an edit",
                [&] { return service.count(sealed); });
        legs.measure("label", [&] {
            panel->updateInterfaceWithPrepopulatedStats(stats);
            return true;
        });
    }
    legs.print();
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    const QStringList words = QCoreApplication::arguments();
    const qsizetype size = words.size() > 1 ? words[1].toLongLong() : 1'000'000;
    const int edits = words.size() > 2 ? words[2].toInt() : 50;
    std::printf("%-26s %9s %9s %9s\n", "leg, in ms", "shortest", "median", "processor");
    measureLegs(EditedText(words.value(3), size), edits);
    return 0;
}
