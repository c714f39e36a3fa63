// SPDX-License-Identifier: MIT
#include "platform/printing/PrinterSource.h"

#include "platform/printing/CupsAnswers.h"

#include <cups/cups.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <memory>
#include <mutex>

namespace {

constexpr qsizetype maxDescriptionSize = 4'194'304;
constexpr int cupsTimeout = 20; // seconds without data

struct CupsDeleter {
    void operator()(http_t *connection) const { httpClose(connection); }
    void operator()(ipp_t *message) const { ippDelete(message); }
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
using Connection = std::unique_ptr<http_t, CupsDeleter>;
using Message = std::unique_ptr<ipp_t, CupsDeleter>;
using Destination = std::unique_ptr<cups_dest_t, CupsDeleter>;

void initializeCups()
{
    // The first use of CUPS ignores SIGPIPE for the whole process, whose other code may depend on it.
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction before { };
        ::sigaction(SIGPIPE, nullptr, &before);
        httpInitialize();
        ::sigaction(SIGPIPE, &before, nullptr);
    });
    // If a server requires a password, CUPS would ask for it in the terminal.
    cupsSetPasswordCB2(
        [](const char *, http_t *, const char *, const char *, void *) -> const char * { return nullptr; },
        nullptr);
}

Connection connectToServer()
{
    Connection http(httpConnect2(
        cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, cupsTimeout * 1000, nullptr));
    if (http)
        httpSetTimeout(
            http.get(), cupsTimeout, [](http_t *, void *) { return 0; }, nullptr);
    return http;
}

// The meaning of a failed connection. A remote server may have printers though it cannot be reached now; a
// local one that does not run has none. CUPS does not report why it could not connect.
PrinterFailure failureToConnect()
{
    const char *server = cupsServer();
    if (std::strcmp(server, "localhost") == 0)
        return PrinterFailure::NoPrinter;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (*server != '/' || std::strlen(server) >= sizeof address.sun_path)
        return PrinterFailure::NotAnswering;
    std::memcpy(address.sun_path, server, std::strlen(server)); // the rest is zero already
    const int probe = ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    const bool isRefused = ::connect(probe, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0
        && (errno == ENOENT || errno == ECONNREFUSED);
    ::close(probe);
    return isRefused ? PrinterFailure::NoPrinter : PrinterFailure::NotAnswering;
}

bool isSuccess(ipp_status_t status)
{
    return status <= IPP_STATUS_OK_EVENTS_COMPLETE;
}

Message request(
    http_t *http, ipp_op_t operation, const char *printerUri, std::initializer_list<const char *> attributes)
{
    ipp_t *message = ippNewRequest(operation);
    if (printerUri)
        ippAddString(message, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, printerUri);
    else
        ippAddInteger(message, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "limit", 1);
    ippAddStrings(message, IPP_TAG_OPERATION, IPP_CONST_TAG(IPP_TAG_KEYWORD), "requested-attributes",
        static_cast<int>(attributes.size()), nullptr, attributes.begin());
    return Message(cupsDoRequest(http, message, "/"));
}

// cupsEnumDests() reports a silent server as one without printers, so the server is asked first.
std::optional<PrinterFailure> failureToListQueues(http_t *http)
{
    const Message answer = request(http, IPP_OP_CUPS_GET_PRINTERS, nullptr, {"printer-name"});
    if (!answer)
        return PrinterFailure::NotAnswering;
    const ipp_status_t status = ippGetStatusCode(answer.get());
    const bool hasQueues = ippFindAttribute(answer.get(), "printer-name", IPP_TAG_NAME);
    if (status == IPP_STATUS_ERROR_NOT_FOUND || (isSuccess(status) && !hasQueues))
        return PrinterFailure::NoPrinter;
    return isSuccess(status) ? std::nullopt : std::optional(PrinterFailure::NotAnswering);
}

QByteArray optionValue(const cups_dest_t &destination, const char *name)
{
    return cupsGetOption(name, destination.num_options, destination.options);
}

// Keeps the default queue, and until it is found the first one.
int chooseQueue(void *chosen, unsigned, cups_dest_t *candidate)
{
    auto &queue = *static_cast<Destination *>(chosen);
    if ((queue && !candidate->is_default) || optionValue(*candidate, "printer-uri-supported").isEmpty())
        return 1;
    cups_dest_t *copy = nullptr;
    cupsCopyDest(candidate, 0, &copy);
    queue.reset(copy);
    return candidate->is_default ? 0 : 1;
}

Destination defaultQueue()
{
    Destination queue;
    // Excluding discovered printers keeps libcups from searching the network, which takes a second.
    constexpr int networkLimit = 1000; // milliseconds
    cupsEnumDests(
        CUPS_DEST_FLAGS_NONE, networkLimit, nullptr, 0, CUPS_PRINTER_DISCOVERED, chooseQueue, &queue);
    return queue;
}

// Absent if the server does not answer, empty if it has no file.
std::optional<QByteArray> descriptionFile(http_t *http, const char *queue)
{
    const QByteArray resource = "/printers/" + QByteArray(queue) + ".ppd";
    httpClearFields(http);
    if (httpGet(http, resource.constData()) != 0)
        return std::nullopt;
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE)
        status = httpUpdate(http);
    if (status == HTTP_STATUS_ERROR)
        return std::nullopt;
    if (status != HTTP_STATUS_OK)
        return QByteArray();
    QByteArray file;
    char piece[16 * 1024];
    ssize_t size = 0;
    while (file.size() < maxDescriptionSize && (size = httpRead2(http, piece, sizeof piece)) > 0)
        file.append(piece, size);
    return size < 0 ? std::nullopt : std::optional(file);
}

} // namespace

Result<Printer, PrinterFailure> CupsPrinterSource::ask()
{
    initializeCups();
    const Connection http = connectToServer();
    if (!http)
        return failureToConnect();
    if (const std::optional<PrinterFailure> failure = failureToListQueues(http.get()))
        return *failure;
    const Destination queue = defaultQueue();
    if (!queue)
        return PrinterFailure::NotAnswering;
    const Message attributes = request(http.get(), IPP_OP_GET_PRINTER_ATTRIBUTES,
        optionValue(*queue, "printer-uri-supported").constData(),
        {"media-supported", "media-default", "media-col-database"});
    const std::optional<QByteArray> file = descriptionFile(http.get(), queue->name);
    if (!attributes || !isSuccess(ippGetStatusCode(attributes.get())) || !file)
        return PrinterFailure::NotAnswering;

    return parsePrinter({.attributes = attributes.get(),
        .descriptionFile = *file,
        .pageSizeOption = optionValue(*queue, "PageSize"),
        .mediaOption = optionValue(*queue, "media"),
        .scalingOption = optionValue(*queue, "scaling")});
}
