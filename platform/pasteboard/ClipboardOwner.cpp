// SPDX-License-Identifier: MIT
#include "platform/pasteboard/ClipboardOwner.h"

#include "platform/pasteboard/Selection.h"
#include "platform/pasteboard/SelectionTargets.h"

#include <algorithm>

namespace {

uint8_t typeOf(const xcb_generic_event_t &event)
{
    return event.response_type & 0x7f; // the highest bit marks events that a client has sent
}

} // namespace

ClipboardOwner::ClipboardOwner()
    : m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0)
        return;
    m_window = xcb_generate_id(m_connection);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    constexpr uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, root, 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    m_clipboard = atom("CLIPBOARD");
    m_manager = atom("CLIPBOARD_MANAGER");
    m_targets = atom("TARGETS");
    m_timestamp = atom("TIMESTAMP");
}

ClipboardOwner::~ClipboardOwner()
{
    xcb_disconnect(m_connection);
}

bool ClipboardOwner::takeOver()
{
    // The time before the content is read: who copies something after that remains the owner.
    const std::optional<xcb_timestamp_t> time = serverTime();
    if (!time)
        return false;
    const Result<Pasteboard, SelectionFailure> content =
        readSelection(SelectionName::Clipboard, SelectionContent::Text, maxBytes);
    if (!content)
        return false;
    setForms(content.value().forms());
    m_time = *time;
    xcb_set_selection_owner(m_connection, m_window, m_clipboard, m_time);
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> reply(
        xcb_get_selection_owner_reply(
            m_connection, xcb_get_selection_owner(m_connection, m_clipboard), nullptr),
        &std::free);
    return reply && reply->owner == m_window;
}

void ClipboardOwner::serve()
{
    askManagerToSave();
    while (const Event event = nextEvent()) {
        if (typeOf(*event) == XCB_SELECTION_CLEAR || isAnswerOfManager(*event))
            return;
        if (typeOf(*event) == XCB_SELECTION_REQUEST)
            answer(reinterpret_cast<const xcb_selection_request_event_t &>(*event));
    }
}

/// The protocol of clipboard managers that freedesktop.org describes. Without a manager the server refuses.
void ClipboardOwner::askManagerToSave() const
{
    const xcb_atom_t saveTargets = atom("SAVE_TARGETS");
    xcb_convert_selection(m_connection, m_window, m_manager, saveTargets, saveTargets, m_time);
    xcb_flush(m_connection);
}

bool ClipboardOwner::isAnswerOfManager(const xcb_generic_event_t &event) const
{
    if (typeOf(event) != XCB_SELECTION_NOTIFY)
        return false;
    const auto &notify = reinterpret_cast<const xcb_selection_notify_event_t &>(event);
    return notify.selection == m_manager && notify.property != XCB_ATOM_NONE;
}

/// Null once the display is lost.
ClipboardOwner::Event ClipboardOwner::nextEvent() const
{
    return {xcb_wait_for_event(m_connection), &std::free};
}

xcb_atom_t ClipboardOwner::atom(const QByteArray &name) const
{
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(name.size()), name.constData()), nullptr),
        &std::free);
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// The server's clock, which only events carry.
std::optional<xcb_timestamp_t> ClipboardOwner::serverTime() const
{
    if (m_window == XCB_WINDOW_NONE)
        return std::nullopt;
    xcb_change_property(
        m_connection, XCB_PROP_MODE_APPEND, m_window, XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, 0, nullptr);
    xcb_flush(m_connection);
    while (const Event event = nextEvent()) {
        if (typeOf(*event) == XCB_PROPERTY_NOTIFY)
            return reinterpret_cast<const xcb_property_notify_event_t &>(*event).time;
    }
    return std::nullopt;
}

void ClipboardOwner::setForms(const Pasteboard::Forms &forms)
{
    for (const auto &[type, bytes] : forms) {
        for (const QByteArray &target : SelectionTargets::targetsToOffer(type))
            m_forms.push_back({atom(target), bytes});
    }
}

void ClipboardOwner::answer(const xcb_selection_request_event_t &request) const
{
    xcb_selection_notify_event_t notify = {};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    // Requestors of older programs name no property.
    const xcb_atom_t property = request.property == XCB_ATOM_NONE ? request.target : request.property;
    notify.property = convert(request, property) ? property : xcb_atom_t{XCB_ATOM_NONE};
    xcb_send_event(
        m_connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char *>(&notify));
    xcb_flush(m_connection);
}

bool ClipboardOwner::convert(const xcb_selection_request_event_t &request, xcb_atom_t property) const
{
    if (request.target == m_timestamp) {
        setProperty(request, property, XCB_ATOM_INTEGER, 32, 1, &m_time);
        return true;
    }
    if (request.target == m_targets) {
        std::vector<xcb_atom_t> targets{m_targets, m_timestamp};
        for (const Form &form : m_forms)
            targets.push_back(form.target);
        setProperty(
            request, property, XCB_ATOM_ATOM, 32, static_cast<uint32_t>(targets.size()), targets.data());
        return true;
    }
    const auto form = std::ranges::find(m_forms, request.target, &Form::target);
    if (form == m_forms.end())
        return false;
    setProperty(request, property, form->target, 8, static_cast<uint32_t>(form->bytes.size()),
        form->bytes.constData());
    return true;
}

void ClipboardOwner::setProperty(const xcb_selection_request_event_t &request, xcb_atom_t property,
    xcb_atom_t type, uint8_t format, uint32_t length, const void *data) const
{
    xcb_change_property(
        m_connection, XCB_PROP_MODE_REPLACE, request.requestor, property, type, format, length, data);
}
