// SPDX-License-Identifier: MIT
// wayland_owner clipboard|primary MANNER [TYPE FILE]…: owns a selection of the Wayland compositor by data
// control and hands the files over, as an application does; prints "owned" when it owns it. MANNER: "good",
// or what it does wrong: "silent" never writes, "stops-in-the-middle" writes one piece and waits,
// "exits-in-the-middle" writes one piece and exits, "endless" never stops writing, "many-types" offers 3000
// others after those of the files.
#include "platform/pasteboard/WaylandSelection.h"
#include "platform/wayland/SelectionInterfaces.h"

#include <csignal>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <utility>

#include <unistd.h>

namespace {

constexpr size_t pieceSize = 10;

void writeAll(int pipe, const std::string &bytes)
{
    for (size_t position = 0; position < bytes.size();) {
        const ssize_t count = ::write(pipe, bytes.data() + position, bytes.size() - position);
        if (count <= 0)
            return;
        position += static_cast<size_t>(count);
    }
}

class Owner {
public:
    Owner(SelectionName selection, std::string manner)
        : m_manner(std::move(manner))
        , m_selection(m_connection, WaylandSelection::Access::AnyProgram, selection, 0)
    {
    }

    void add(const char *type, const char *file)
    {
        std::ifstream stream(file, std::ios::binary);
        m_forms[type] = {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

    bool own()
    {
        m_source = m_selection.makeSource();
        WaylandConnection::follow(m_source, m_handler);
        for (const auto &[type, bytes] : m_forms)
            WaylandConnection::request(m_source, SelectionInterfaces::Offer, {{.s = type.c_str()}});
        for (int i = 0; m_manner == "many-types" && i < 3000; ++i) {
            const std::string type = "application/x-other-" + std::to_string(i);
            WaylandConnection::request(m_source, SelectionInterfaces::Offer, {{.s = type.c_str()}});
        }
        m_selection.setSource(m_source);
        return m_connection.synchronize(QDeadlineTimer(QDeadlineTimer::Forever));
    }

    void run()
    {
        (void)m_connection.waitFor([this] { return m_isReplaced; }, QDeadlineTimer(QDeadlineTimer::Forever));
    }

private:
    void handle(uint32_t opcode, const wl_argument *arguments)
    {
        if (opcode == SelectionInterfaces::Send)
            write(m_forms[arguments[0].s], arguments[1].h);
        m_isReplaced |= opcode == SelectionInterfaces::Cancelled;
    }

    /// Leaves the pipe open where the manner is to write nothing more.
    void write(const std::string &bytes, int pipe)
    {
        if (m_manner == "silent")
            return;
        if (m_manner == "stops-in-the-middle" || m_manner == "exits-in-the-middle") {
            writeAll(pipe, bytes.substr(0, pieceSize));
            if (m_manner == "exits-in-the-middle")
                std::_Exit(0);
            return;
        }
        while (m_manner == "endless" && ::write(pipe, "endless ", 8) > 0) { }
        writeAll(pipe, bytes);
        ::close(pipe);
    }

    const std::string m_manner;
    std::map<std::string, std::string> m_forms;
    WaylandConnection m_connection;
    WaylandSelection m_selection;
    WaylandConnection::EventHandler m_handler = [this](uint32_t opcode, const wl_argument *arguments) {
        handle(opcode, arguments);
    };
    WaylandConnection::Object m_source;
    bool m_isReplaced = false;
};

} // namespace

int main(int argumentCount, char **arguments)
{
    std::signal(SIGPIPE, SIG_IGN);
    const bool isPrimary = std::string(arguments[1]) == "primary";
    Owner owner(isPrimary ? SelectionName::Primary : SelectionName::Clipboard, arguments[2]);
    for (int i = 3; i + 1 < argumentCount; i += 2)
        owner.add(arguments[i], arguments[i + 1]);
    if (!owner.own())
        return 1;
    std::puts("owned");
    std::fflush(stdout);
    owner.run();
}
