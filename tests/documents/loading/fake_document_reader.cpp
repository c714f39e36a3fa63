// SPDX-License-Identifier: MIT
// A program in place of quillbay-document-reader that a document has taken over. It greets as it should; what
// it does with its request, the name says that it is started by.
#include "documents/flat_text/FlatTextWriter.h"
#include "documents/loading/ReaderMessages.h"
#include "platform/system/PacketSocket.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string>

namespace {

void crash()
{
    ::signal(SIGSEGV, SIG_DFL); // a sanitizer would report it
    ::raise(SIGSEGV);
}

std::span<char> mapResult()
{
    struct stat status = {};
    ::fstat(ReaderMessages::resultMemory, &status);
    const auto size = static_cast<size_t>(status.st_size);
    void *const mapping =
        ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, ReaderMessages::resultMemory, 0);
    return {static_cast<char *>(mapping), size};
}

void reply(const Result<quint64, DocumentError> &length)
{
    (void)sendPacket(ReaderMessages::socket, encode(ReaderReply{length}));
}

} // namespace

int main(int, char **arguments)
{
    const std::string path = arguments[0];
    const std::string name = path.substr(path.rfind('/') + 1);
    if (name == "ends-at-once")
        return 0;
    if (name == "greets-with-garbage") {
        (void)sendPacket(ReaderMessages::socket, "garbage");
        ::pause();
    }
    (void)sendPacket(ReaderMessages::socket, encode(ReaderGreeting{true}));
    const auto packet = receivePacket(ReaderMessages::socket);
    if (!packet)
        return 0;
    const std::span<char> result = mapResult();
    const auto length = *writeFlatText(AttributedString(QStringLiteral("text")), result);
    const auto unmap = [&] { ::munmap(result.data(), result.size()); };
    if (name == "crashes")
        crash();
    if (name == "aborts")
        ::raise(SIGABRT);
    if (name == "exits")
        return 0;
    if (name == "hangs")
        ::pause();
    if (name == "closes-its-socket") {
        ::close(ReaderMessages::socket);
        ::pause();
    }
    if (name == "replies-with-garbage")
        (void)sendPacket(ReaderMessages::socket, "garbage");
    if (name == "keeps-the-memory") {
        reply(static_cast<quint64>(length));
        ::pause();
    }
    if (name == "writes-garbage")
        std::memset(result.data(), 'x', static_cast<size_t>(length));
    if (name == "grows-the-memory" && ::ftruncate(ReaderMessages::resultMemory, 1'000'000'000'000) != 0)
        crash();
    unmap();
    if (name == "claims-too-much")
        reply(UINT64_MAX);
    if (name == "claims-too-little")
        reply(static_cast<quint64>(length - 1));
    reply(static_cast<quint64>(length));
    if (name == "lives-on")
        ::pause();
    return 0;
}
