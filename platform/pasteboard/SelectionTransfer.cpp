// SPDX-License-Identifier: MIT
#include "platform/pasteboard/SelectionTransfer.h"

#include <QDeadlineTimer>

#include <poll.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

using namespace std::chrono_literals;

namespace {

constexpr auto timeout = 2s;
constexpr uint32_t pieceLength = 1 << 18; // of a property, in units of four bytes
constexpr size_t maxTargets = 256;

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply *reply)
{
    return {reply, &std::free};
}

xcb_window_t windowWithPropertyEvents(xcb_connection_t *connection)
{
    const xcb_window_t window = xcb_generate_id(connection);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root, 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    return window;
}

uint8_t kindOf(const xcb_generic_event_t &event)
{
    return event.response_type & 0x7f; // the highest bit marks events that a client has sent
}

} // namespace

SelectionTransfer::SelectionTransfer(xcb_connection_t *connection, const char *selection, quint64 maxBytes)
    : m_connection(connection)
    , m_window(windowWithPropertyEvents(connection))
    , m_selection(atom(selection))
    , m_property(atom("QUILLBAY_SELECTION"))
    , m_bytesLeft(maxBytes)
{
}

SelectionTransfer::~SelectionTransfer()
{
    xcb_destroy_window(m_connection, m_window);
    xcb_flush(m_connection);
}

bool SelectionTransfer::hasOwner()
{
    const auto reply = owned(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

Result<SelectionSource::Content, SelectionSource::Failure> SelectionTransfer::convert(
    const QByteArray &target)
{
    const xcb_atom_t targetAtom = atom(target);
    // There is no user event with a time. Owners treat this time as "now".
    xcb_convert_selection(m_connection, m_window, m_selection, targetAtom, m_property, XCB_CURRENT_TIME);
    const Event event = waitFor([&](const xcb_generic_event_t &candidate) {
        const auto &notify = reinterpret_cast<const xcb_selection_notify_event_t &>(candidate);
        return kindOf(candidate) == XCB_SELECTION_NOTIFY && notify.requestor == m_window
            && notify.selection == m_selection && notify.target == targetAtom;
    });
    if (!event)
        return Failure::NoAnswer;
    if (reinterpret_cast<const xcb_selection_notify_event_t &>(*event).property != m_property)
        return Failure::Refused;
    const Result<Content, Failure> content = takeProperty();
    return content && content.value().type == "INCR" ? takePieces() : content;
}

Result<QByteArrayList, SelectionSource::Failure> SelectionTransfer::targets()
{
    const Result<Content, Failure> content = convert("TARGETS");
    if (!content)
        return content.error();
    // Some owners answer TARGETS with a text.
    if (content.value().type != "ATOM" && content.value().type != "TARGETS")
        return Failure::Refused;
    return namesOf(content.value().bytes);
}

xcb_atom_t SelectionTransfer::atom(const QByteArray &name) const
{
    const auto reply = owned(xcb_intern_atom_reply(m_connection,
        xcb_intern_atom(m_connection, false, static_cast<uint16_t>(name.size()), name.constData()), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

QByteArrayList SelectionTransfer::namesOf(const QByteArray &atoms) const
{
    std::vector<xcb_atom_t> identifiers(
        std::min(static_cast<size_t>(atoms.size()) / sizeof(xcb_atom_t), maxTargets));
    if (!identifiers.empty())
        std::memcpy(identifiers.data(), atoms.constData(), identifiers.size() * sizeof(xcb_atom_t));
    // All requests are sent before the first answer is read: one round trip.
    std::vector<xcb_get_atom_name_cookie_t> cookies;
    cookies.reserve(identifiers.size());
    for (const xcb_atom_t identifier : identifiers)
        cookies.push_back(xcb_get_atom_name(m_connection, identifier));
    QByteArrayList names;
    for (const xcb_get_atom_name_cookie_t cookie : cookies) {
        xcb_generic_error_t *error = nullptr; // an owner may list atoms that do not exist
        const auto reply = owned(xcb_get_atom_name_reply(m_connection, cookie, &error));
        std::free(error);
        if (reply)
            names.append(
                QByteArray(xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get())));
    }
    return names;
}

SelectionTransfer::Event SelectionTransfer::waitFor(const IsWanted &isWanted) const
{
    const QDeadlineTimer deadline(timeout);
    // Other events do not extend the wait.
    do {
        Event event = nextEvent(deadline);
        if (!event || isWanted(*event))
            return event;
    } while (!deadline.hasExpired());
    return owned<xcb_generic_event_t>(nullptr);
}

SelectionTransfer::Event SelectionTransfer::nextEvent(const QDeadlineTimer &deadline) const
{
    xcb_flush(m_connection);
    for (;;) {
        auto event = owned(xcb_poll_for_event(m_connection));
        if (event || xcb_connection_has_error(m_connection) || deadline.hasExpired())
            return event;
        pollfd display{xcb_get_file_descriptor(m_connection), POLLIN, 0};
        ::poll(&display, 1, static_cast<int>(deadline.remainingTime()) + 1);
    }
}

/// Reads the property and deletes it, which signals the owner that the transfer is complete.
Result<SelectionSource::Content, SelectionSource::Failure> SelectionTransfer::takeProperty()
{
    Content content;
    xcb_atom_t type = XCB_ATOM_NONE;
    for (bool hasMore = true; hasMore;) {
        const auto offset = static_cast<uint32_t>(content.bytes.size() / 4);
        const auto reply = owned(xcb_get_property_reply(m_connection,
            xcb_get_property(
                m_connection, true, m_window, m_property, XCB_GET_PROPERTY_TYPE_ANY, offset, pieceLength),
            nullptr));
        if (!reply)
            return Failure::NoAnswer;
        const auto length = static_cast<quint64>(xcb_get_property_value_length(reply.get()));
        if (length + reply->bytes_after > m_bytesLeft)
            return Failure::TooLarge;
        m_bytesLeft -= length;
        content.bytes.append(
            static_cast<const char *>(xcb_get_property_value(reply.get())), static_cast<qsizetype>(length));
        type = reply->type;
        hasMore = reply->bytes_after > 0 && length > 0;
    }
    if (type != XCB_ATOM_NONE)
        content.type = namesOf(QByteArray(reinterpret_cast<const char *>(&type), sizeof type)).value(0);
    return content;
}

/// The property had the type INCR and is deleted now: the owner sets it to each piece after the previous one
/// was deleted.
Result<SelectionSource::Content, SelectionSource::Failure> SelectionTransfer::takePieces()
{
    Content whole;
    for (;;) {
        const Event event = waitFor([&](const xcb_generic_event_t &candidate) {
            const auto &notify = reinterpret_cast<const xcb_property_notify_event_t &>(candidate);
            return kindOf(candidate) == XCB_PROPERTY_NOTIFY && notify.window == m_window
                && notify.atom == m_property && notify.state == XCB_PROPERTY_NEW_VALUE;
        });
        if (!event)
            return Failure::NoAnswer;
        Result<Content, Failure> piece = takeProperty();
        if (!piece || piece.value().bytes.isEmpty())
            return piece ? Result<Content, Failure>(std::move(whole)) : piece;
        if (whole.bytes.isEmpty())
            whole = std::move(piece).value();
        else
            whole.bytes.append(piece.value().bytes);
    }
}
