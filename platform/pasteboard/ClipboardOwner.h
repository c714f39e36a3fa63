// SPDX-License-Identifier: MIT
// ClipboardOwner owns the clipboard of the X display with a content that it took over from the former owner,
// and serves it until another program copies something (ICCCM 2.0, chapter 2).
// Thread: one.  Owner: a program that does nothing else.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

class ClipboardOwner {
public:
    /// Of all forms together; each fits into one property.
    static constexpr quint64 maxBytes = 65'536;

    /// Connects to the display in the environment.
    ClipboardOwner();
    ClipboardOwner(const ClipboardOwner &) = delete;
    ClipboardOwner &operator=(const ClipboardOwner &) = delete;
    ~ClipboardOwner();

    /// Reads the clipboard's text forms and becomes the owner. False if there is no text, if it is larger
    /// than maxBytes, if another program copies something meanwhile, or if the display is lost.
    [[nodiscard]] bool takeOver();

    /// Answers requests until a clipboard manager has saved the content, another program owns the clipboard
    /// or the display is lost.
    void serve();

private:
    struct Form {
        xcb_atom_t target;
        QByteArray bytes;
    };
    using Event = std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>;

    [[nodiscard]] Event nextEvent() const;
    [[nodiscard]] xcb_atom_t atom(const QByteArray &name) const;
    [[nodiscard]] std::optional<xcb_timestamp_t> serverTime() const;
    void askManagerToSave() const;
    [[nodiscard]] bool isAnswerOfManager(const xcb_generic_event_t &event) const;
    void setForms(const Pasteboard::Forms &forms);
    void answer(const xcb_selection_request_event_t &request) const;
    /// Stores the content in the requestor's property; false for an unknown target.
    [[nodiscard]] bool convert(const xcb_selection_request_event_t &request, xcb_atom_t property) const;
    void setProperty(const xcb_selection_request_event_t &request, xcb_atom_t property, xcb_atom_t type,
        uint8_t format, uint32_t length, const void *data) const;

    xcb_connection_t *const m_connection;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    xcb_atom_t m_clipboard = XCB_ATOM_NONE;
    xcb_atom_t m_manager = XCB_ATOM_NONE;
    xcb_atom_t m_targets = XCB_ATOM_NONE;
    xcb_atom_t m_timestamp = XCB_ATOM_NONE;
    xcb_timestamp_t m_time = XCB_CURRENT_TIME; ///< since when it owns the clipboard
    std::vector<Form> m_forms;
};
