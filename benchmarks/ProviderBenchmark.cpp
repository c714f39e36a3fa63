// SPDX-License-Identifier: MIT
// The real service provider on a display and a session bus that have its services: how long a request takes
// to its window on the screen and to the numbers in it, cold (neither provider nor counting service run) and
// warm, and what memory the provider holds with 1 and 20 windows and after 500 that were closed again. Run it
// by
//
//     xvfb-run -s '-screen 0 1280x800x24' env XDG_DATA_DIRS=build/release/share:/usr/share \
//         dbus-run-session -- sh -c 'openbox & exec build/release/bin/provider_benchmark'
#include "platform/services/ServiceInterface.h"
#include "platform/services/ServiceMessageSender.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusReply>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>

#include <xcb/xcb.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <vector>

namespace {

constexpr int rounds = 20;
constexpr int titleRow = 31; // pixels without numbers

template <typename Reply>
using Received = std::unique_ptr<Reply, decltype([](Reply *reply) { std::free(reply); })>;

class Display {
public:
    Display()
    {
        if (xcb_connection_has_error(m_connection))
            qFatal("There is no display.");
        constexpr quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_connection, root(), XCB_CW_EVENT_MASK, &events);
    }
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;
    ~Display() { xcb_disconnect(m_connection); }

    /// The windows of the window manager, oldest first.
    [[nodiscard]] std::vector<xcb_window_t> windows() const
    {
        const Received<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection,
            xcb_get_property(m_connection, 0, root(), atom("_NET_CLIENT_LIST"), XCB_ATOM_WINDOW, 0, 4096),
            nullptr));
        if (!reply)
            return {};
        const auto *const first = static_cast<const xcb_window_t *>(xcb_get_property_value(reply.get()));
        return {first, first + xcb_get_property_value_length(reply.get()) / 4};
    }

    /// Whether there is text below the title row.
    [[nodiscard]] bool showsNumbers(xcb_window_t window) const
    {
        const Received<xcb_get_geometry_reply_t> place(
            xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, window), nullptr));
        if (!place || place->height <= titleRow)
            return false;
        const Received<xcb_get_image_reply_t> image(xcb_get_image_reply(m_connection,
            xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 2, titleRow,
                static_cast<quint16>(place->width - 4), static_cast<quint16>(place->height - titleRow - 2),
                ~0U),
            nullptr));
        if (!image)
            return false;
        const auto *const pixels = reinterpret_cast<const quint32 *>(xcb_get_image_data(image.get()));
        const int count = xcb_get_image_data_length(image.get()) / 4;
        return std::any_of(pixels, pixels + count, [&](quint32 pixel) { return pixel != pixels[0]; });
    }

    void close(xcb_window_t window) const
    {
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = atom("_NET_CLOSE_WINDOW");
        message.data.data32[1] = 2;
        xcb_send_event(m_connection, 0, root(),
            XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
            reinterpret_cast<const char *>(&message));
        xcb_flush(m_connection);
    }

private:
    [[nodiscard]] xcb_window_t root() const
    {
        return xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    }
    [[nodiscard]] xcb_atom_t atom(const char *name) const
    {
        const Received<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<quint16>(std::strlen(name)), name), nullptr));
        return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }

    xcb_connection_t *m_connection = xcb_connect(nullptr, nullptr);
};

template <typename Condition>
void wait(const Condition &condition)
{
    while (!condition())
        QThread::usleep(300);
}

pid_t processOf(const QString &name)
{
    const QDBusReply<uint> process = QDBusConnection::sessionBus().interface()->servicePid(name);
    return process.isValid() ? static_cast<pid_t>(process.value()) : 0;
}

void end(const QString &name)
{
    while (const pid_t process = processOf(name)) {
        ::kill(process, SIGKILL);
        wait([&] { return processOf(name) != process; });
    }
}

QByteArray statusOf(pid_t process, const char *field)
{
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(process));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray text = file.readAll();
    const qsizetype start = text.indexOf(field);
    return start < 0 ? QByteArray() : text.mid(start, text.indexOf('\n', start) - start).simplified();
}

void printMemory(const char *when)
{
    const pid_t process = processOf(ServiceInterface::busName());
    std::printf("memory, %s: %s, %s, %s\n", when, statusOf(process, "Rss:").constData(),
        statusOf(process, "Pss:").constData(), statusOf(process, "Private_Dirty:").constData());
    std::fflush(stdout);
}

class Requests {
public:
    explicit Requests(const Display &display)
        : m_display(display)
    {
    }

    /// Requests a window and returns it, with the milliseconds to the window and to its numbers.
    xcb_window_t ask(double *toWindow = nullptr, double *toNumbers = nullptr) const
    {
        const size_t before = m_display.windows().size();
        QElapsedTimer timer;
        timer.start();
        const auto failure = sendServiceMessage(QStringLiteral("wordCountSelectedTextService"), m_text);
        if (failure)
            qFatal("%s", qPrintable(causeText(*failure)));
        wait([&] { return m_display.windows().size() > before; });
        const xcb_window_t window = m_display.windows().back();
        if (toWindow)
            *toWindow = double(timer.nsecsElapsed()) / 1e6;
        wait([&] { return m_display.showsNumbers(window); });
        if (toNumbers)
            *toNumbers = double(timer.nsecsElapsed()) / 1e6;
        return window;
    }

    void waitForNoWindow() const
    {
        wait([&] { return m_display.windows().empty(); });
    }

    void close(xcb_window_t window) const
    {
        m_display.close(window);
        wait([&] {
            const std::vector<xcb_window_t> windows = m_display.windows();
            return std::find(windows.begin(), windows.end(), window) == windows.end();
        });
    }

private:
    const Display &m_display;
    const Pasteboard m_text{{{QStringLiteral("text/plain;charset=utf-8"),
        QByteArray("The boat lay still. \"Who rows?\" she asked.\n\n").repeated(50)}}};
};

void printMedian(const char *what, std::vector<double> times)
{
    std::ranges::sort(times);
    std::printf("%s: median %.1f ms, from %.1f to %.1f (%zu)\n", what, times[times.size() / 2], times.front(),
        times.back(), times.size());
    std::fflush(stdout);
}

void measureTimes(const Requests &requests, bool isCold)
{
    std::vector<double> toWindow(rounds);
    std::vector<double> toNumbers(rounds);
    for (size_t i = 0; i < rounds; ++i) {
        if (isCold) {
            end(ServiceInterface::busName());
            end(QStringLiteral("Brisklane.QBYServiceProviderXPC"));
            requests.waitForNoWindow();
        }
        const xcb_window_t window = requests.ask(&toWindow[i], &toNumbers[i]);
        if (!isCold)
            requests.close(window);
    }
    printMedian(isCold ? "cold, request to window" : "warm, request to window", toWindow);
    printMedian(isCold ? "cold, request to numbers" : "warm, request to numbers", toNumbers);
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    exportSessionEnvironment();
    const Display display;
    const Requests requests(display);
    measureTimes(requests, true);
    // The last window stays open and keeps the provider running.
    measureTimes(requests, false);

    printMemory("1 window");
    std::vector<xcb_window_t> windows;
    for (int i = 0; i < 19; ++i)
        windows.push_back(requests.ask());
    printMemory("20 windows");
    for (const xcb_window_t window : windows)
        requests.close(window);
    printMemory("1 window again");
    for (int i = 1; i <= 500; ++i) {
        requests.close(requests.ask());
        if (i % 100 == 0)
            printMemory(qPrintable(QStringLiteral("after %1 windows that were closed").arg(i)));
    }
    end(ServiceInterface::busName());
    return 0;
}
