// SPDX-License-Identifier: MIT
#include "platform/pasteboard/WaylandSelection.h"

#include "platform/system/OwnedDescriptor.h"
#include "platform/system/Processes.h"
#include "platform/wayland/SelectionInterfaces.h"

#include <wayland-client-protocol.h>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <utility>

using namespace std::chrono_literals;

namespace {

constexpr auto pieceTimeout = 2s;
constexpr auto totalTimeout = 30s; // for an owner that never stops writing
constexpr qsizetype maxTypes = 256;
constexpr size_t maxTypeLength = 256;

} // namespace

/// What the protocols for selections differ in.
struct WaylandSelection::Variant {
    const wl_interface &manager;
    const wl_interface &device;
    uint32_t selectionEvent;
    uint32_t receiveRequest = 0;
    uint32_t destroyOfferRequest = 1;
};

struct WaylandSelection::Offer {
    Offer(wl_proxy *proxy, uint32_t givenDestroyRequest)
        : destroyRequest(givenDestroyRequest)
        , object(proxy)
    {
        WaylandConnection::follow(object, handler);
    }
    Offer(const Offer &) = delete;
    Offer &operator=(const Offer &) = delete;
    ~Offer() { WaylandConnection::request(object, destroyRequest, {}); }

    WaylandConnection::EventHandler handler = [this](uint32_t opcode, const wl_argument *arguments) {
        const bool isUsable = opcode == SelectionInterfaces::OfferedType && types.size() < maxTypes
            && ::strnlen(arguments[0].s, maxTypeLength + 1) <= maxTypeLength;
        if (isUsable)
            types.append(arguments[0].s);
    };
    const uint32_t destroyRequest;
    WaylandConnection::Object object;
    QByteArrayList types;
};

WaylandSelection::Variant WaylandSelection::variantFor(
    const WaylandConnection &connection, Access access, SelectionName name)
{
    using Interfaces = SelectionInterfaces;
    const bool isPrimary = name == SelectionName::Primary;
    if (access == Access::AnyProgram) {
        const Interfaces *const offered = Interfaces::offeredDataControl(connection);
        const Interfaces &control = offered ? *offered : Interfaces::wlrootsDataControl();
        return {control.manager(), control.device(),
            isPrimary ? Interfaces::PrimarySelection : Interfaces::Selection};
    }
    if (isPrimary) {
        const Interfaces &primary = Interfaces::primarySelection();
        return {primary.manager(), primary.device(), Interfaces::Selection};
    }
    constexpr uint32_t selectionEvent = 5;
    return {wl_data_device_manager_interface, wl_data_device_interface, selectionEvent, WL_DATA_OFFER_RECEIVE,
        WL_DATA_OFFER_DESTROY};
}

bool WaylandSelection::isOffered(const WaylandConnection &connection, Access access, SelectionName name)
{
    return connection.offers(wl_seat_interface)
        && connection.offers(variantFor(connection, access, name).manager);
}

WaylandSelection::WaylandSelection(
    WaylandConnection &connection, Access access, SelectionName name, quint64 maxBytes)
    : m_connection(connection)
    , m_variant(std::make_unique<const Variant>(variantFor(connection, access, name)))
    , m_manager(connection.bind(m_variant->manager))
    , m_seat(connection.bind(wl_seat_interface))
    , m_deviceHandler(
          [this](uint32_t opcode, const wl_argument *arguments) { handleDevice(opcode, arguments); })
    , m_device(WaylandConnection::make(m_manager, SelectionInterfaces::GetDevice, m_variant->device,
          {{.o = nullptr}, {.o = reinterpret_cast<wl_object *>(m_seat.get())}}))
    , m_deadline(totalTimeout)
    , m_bytesLeft(maxBytes)
{
    WaylandConnection::follow(m_device, m_deviceHandler);
}

WaylandSelection::~WaylandSelection() = default;

/// A compositor reports what is selected when the device is made. Some report nothing if nothing has ever
/// been selected.
bool WaylandSelection::hasOwner()
{
    // Without an answer there may be one.
    return !m_connection.synchronize(QDeadlineTimer(pieceTimeout)) || m_selected;
}

Result<QByteArrayList, SelectionSource::Failure> WaylandSelection::targets()
{
    return m_selected ? Result<QByteArrayList, Failure>(m_selected->types) : Failure::NoAnswer;
}

Result<SelectionSource::Content, SelectionSource::Failure> WaylandSelection::convert(const QByteArray &target)
{
    int ends[2];
    if (!m_selected || ::pipe2(ends, O_CLOEXEC) != 0)
        return Failure::Refused;
    const OwnedDescriptor output(ends[0]);
    OwnedDescriptor input(ends[1]);
    WaylandConnection::request(
        m_selected->object, m_variant->receiveRequest, {{.s = target.constData()}, {.h = input.get()}});
    m_connection.flush();
    input = OwnedDescriptor(); // otherwise the output would never end
    Result<QByteArray, Failure> bytes = readPipe(output.get());
    if (!bytes)
        return bytes.error();
    // Wayland texts are UTF-8, also under the X names of their forms.
    return Content{"UTF8_STRING", std::move(bytes).value()};
}

WaylandConnection::Object WaylandSelection::makeSource() const
{
    return WaylandConnection::make(m_manager, SelectionInterfaces::CreateSource,
        SelectionInterfaces::offeredDataControl(m_connection)->source(), {{.o = nullptr}});
}

void WaylandSelection::setSource(const WaylandConnection::Object &source) const
{
    const bool isPrimary = m_variant->selectionEvent == SelectionInterfaces::PrimarySelection;
    WaylandConnection::request(m_device,
        isPrimary ? SelectionInterfaces::SetPrimarySelection : SelectionInterfaces::SetSelection,
        {{.o = reinterpret_cast<wl_object *>(source.get())}});
}

void WaylandSelection::handleDevice(uint32_t opcode, const wl_argument *arguments)
{
    if (opcode == SelectionInterfaces::DataOffer) {
        m_newest = std::make_unique<Offer>(
            reinterpret_cast<wl_proxy *>(arguments[0].o), m_variant->destroyOfferRequest);
        return;
    }
    if (opcode != m_variant->selectionEvent)
        return;
    ++m_serialNumber;
    const auto *const offer = reinterpret_cast<const wl_proxy *>(arguments[0].o);
    m_selected = m_newest && offer == m_newest->object.get() ? std::move(m_newest) : nullptr;
}

Result<QByteArray, SelectionSource::Failure> WaylandSelection::readPipe(int descriptor)
{
    QByteArray bytes;
    std::array<char, 65'536> piece; // as large as a pipe's buffer
    while (!m_deadline.hasExpired() && waitUntilReadable(descriptor, pieceTimeout)) {
        const ssize_t count = ::read(descriptor, piece.data(), piece.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return bytes;
        if (static_cast<quint64>(count) > m_bytesLeft)
            return Failure::TooLarge;
        m_bytesLeft -= static_cast<quint64>(count);
        bytes.append(piece.data(), count);
    }
    return Failure::NoAnswer;
}
