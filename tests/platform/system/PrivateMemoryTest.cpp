// SPDX-License-Identifier: MIT
// Whether other processes can read the memory of the programs that have users' texts.
#include "tests/harness/QuillbayTest.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstddef>

namespace {

constexpr const char *programs[] = {"quillbay", "quillbay-counting-service", "quillbay-service-provider"};

/// A bus that accepts connections and never answers, so that programs block when they connect.
class DeafBus {
public:
    DeafBus()
        : m_name("quillbay-deaf-bus-" + QByteArray::number(::getpid()))
        , m_socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_un address = {.sun_family = AF_UNIX, .sun_path = {}};
        std::ranges::copy(m_name, address.sun_path + 1); // an abstract socket
        const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1)
            + static_cast<socklen_t>(m_name.size());
        EXPECT_EQ(::bind(m_socket, reinterpret_cast<const sockaddr *>(&address), length), 0);
        EXPECT_EQ(::listen(m_socket, 8), 0);
    }
    DeafBus(const DeafBus &) = delete;
    DeafBus &operator=(const DeafBus &) = delete;
    ~DeafBus() { ::close(m_socket); }

    [[nodiscard]] QByteArray address() const { return "unix:abstract=" + m_name; }

private:
    QByteArray m_name;
    int m_socket;
};

/// The files of such a process in /proc belong to root.
bool isMemoryPrivate(qint64 process)
{
    struct stat status = {};
    const QByteArray file = "/proc/" + QByteArray::number(process) + "/stat";
    return ::stat(file.constData(), &status) == 0 && status.st_uid == 0;
}

class PrivateMemoryTest : public QuillbayTest, public ::testing::WithParamInterface<const char *> { };
INSTANTIATE_TEST_SUITE_P(Of, PrivateMemoryTest, ::testing::ValuesIn(programs),
    [](const auto &program) { return QByteArray(program.param).replace('-', '_').toStdString(); });

} // namespace

TEST_P(PrivateMemoryTest, NoOtherProcessOfTheUserMayReadIt)
{
    const DeafBus bus;
    ChildProcess program(productProgram(QString::fromLatin1(GetParam())));
    program.asOtherUser()
        .withVariable("DBUS_SESSION_BUS_ADDRESS", bus.address())
        .withVariable("QT_QPA_PLATFORM", "offscreen");
    const bool isCommand = GetParam() == std::string_view("quillbay");
    program.start(isCommand ? QByteArrayList{"count"} : QByteArrayList{}); // counts standard input
    EXPECT_TRUE(waitUntil([&] { return isMemoryPrivate(program.processIdentifier()); }));
    program.kill();
}

TEST(PrivateMemory, TheTestDetectsAProcessWithoutPrivateMemory)
{
    ChildProcess program(QStringLiteral("/bin/cat"));
    program.asOtherUser().start({});
    EXPECT_FALSE(isMemoryPrivate(program.processIdentifier()));
}
