// SPDX-License-Identifier: MIT
// A worker that does what the document says:
//   count         answers: words are the document's bytes, characters the process, lines the requests so far
//   spin          works for ever
//   read-hang     reports that it has read the document, then hangs
//   crash, exit, hang, garbage, long, descriptor, twice, other, hung-up, memory, eat
//   first FILE …  does the rest only the first time, and counts the other times; the file records the first
//                 time and contains the worker's process
// Its first argument is how it begins: greet, exit, hang, garbage.
#include "counting_service/protocol/WorkerMessages.h"
#include "counting_service/worker/CountingWorker.h"
#include "platform/system/PacketSocket.h"
#include "platform/system/SealedMemory.h"

#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <vector>

namespace {

constexpr int broker = CountingWorker::socket;
const CountFailure outOfMemory =
    DocumentError(DocumentError::Cause::NotEnoughMemory, DocumentKind::PlainText);
quint64 requests = 0;

void send(const QByteArray &message, int descriptor = -1)
{
    if (!sendPacket(broker, message, descriptor))
        ::_exit(1);
}

[[noreturn]] void hang()
{
    for (;;)
        ::pause();
}

[[noreturn]] void spin()
{
    for (;;)
        (void)::getppid();
}

QByteArray countOf(const WorkerRequest &request, quint64 number)
{
    QBYWordCounterStats stats;
    stats.numberOfWords = request.length;
    stats.numberOfCharacters = static_cast<quint64>(::getpid());
    stats.numberOfLines = requests;
    return encode(WorkerReply{number, stats});
}

void eatMemory()
{
    constexpr size_t bite = size_t{64} * 1024 * 1024;
    while (char *memory = static_cast<char *>(std::malloc(bite)))
        std::memset(memory, 1, 1);
    send(encode(WorkerReply{requests, outOfMemory}));
}

void crash()
{
    ::signal(SIGSEGV, SIG_DFL); // a sanitizer would report it
    ::raise(SIGSEGV);
}

void obey(QByteArrayList words, const WorkerRequest &request)
{
    if (words.value(0) == "first") {
        const int descriptor =
            ::open(words.value(1).constData(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0600);
        const QByteArray process = QByteArray::number(::getpid());
        const bool isFirst =
            ::write(descriptor, process.constData(), static_cast<size_t>(process.size())) > 0;
        words = isFirst ? words.sliced(2) : QByteArrayList{"count"};
    }
    const QByteArray word = words.value(0);
    const QByteArray answer = countOf(request, request.number);
    if (word == "crash")
        crash();
    else if (word == "exit")
        ::_exit(0);
    else if (word == "hang")
        hang();
    else if (word == "spin")
        spin();
    else if (word == "read-hang") {
        send(encode(WorkerProgress{request.number}));
        hang();
    } else if (word == "garbage")
        send("garbage");
    else if (word == "long")
        send(answer + QByteArray(WorkerMessages::maxLength, 'x'));
    else if (word == "descriptor")
        send(answer, broker);
    else if (word == "other")
        send(countOf(request, request.number + 1));
    else if (word == "memory")
        send(encode(WorkerReply{request.number, outOfMemory}));
    else if (word == "eat")
        eatMemory();
    else if (word == "hung-up") {
        ::close(broker);
        hang();
    } else {
        send(answer);
        if (word == "twice")
            send(answer);
    }
}

} // namespace

int main(int argumentCount, char **arguments)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    const QByteArray beginning = argumentCount > 1 ? arguments[1] : "";
    if (beginning == "exit")
        return 3;
    if (beginning == "hang")
        hang();
    send(beginning == "garbage" ? QByteArray("garbage") : encode(WorkerGreeting{}));
    for (;;) {
        const Result<Packet, PacketError> packet = receivePacket(broker);
        const auto request = packet ? decodeRequest(packet.value().message) : std::nullopt;
        if (!request)
            return 0;
        ++requests;
        const auto memory = SealedMemory::receive(packet.value().descriptor.get(), request->length);
        obey(memory.value().bytes().toByteArray().split(' '), *request);
    }
}
