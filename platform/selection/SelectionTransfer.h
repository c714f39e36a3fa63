// SPDX-License-Identifier: MIT
// SelectionTransfer asks the owner of a selection for it in one form after the other, large ones in pieces
// (ICCCM 2.7.2, INCR). Thread: one.  Owner: readSelection(). Used inside this folder only.
#pragma once

#include "platform/base/Result.h"

#include <QByteArray>
#include <QByteArrayList>

#include <xcb/xcb.h>

#include <functional>
#include <map>
#include <memory>

class QDeadlineTimer;

class SelectionTransfer {
public:
    enum class Failure {
        Refused, ///< the owner does not have it in that form
        NoAnswer, ///< for two seconds, or the display has gone
        TooLarge,
    };
    struct Content {
        QByteArray type; ///< the name of the property's type
        int format = 0; ///< bits of an item; items of more than a byte are in this machine's order
        QByteArray bytes;
    };

    /// connection: outlives this. largest: bytes of all contents together.
    SelectionTransfer(xcb_connection_t *connection, const char *selection, quint64 largest);
    SelectionTransfer(const SelectionTransfer &) = delete;
    SelectionTransfer &operator=(const SelectionTransfer &) = delete;
    ~SelectionTransfer();

    [[nodiscard]] bool hasOwner() const;
    Result<Content, Failure> convert(const QByteArray &target);
    /// The names of the targets that the owner says to have: the first few hundred.
    Result<QByteArrayList, Failure> targets();

private:
    using Event = std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>;
    using IsWanted = std::function<bool(const xcb_generic_event_t &event)>;

    [[nodiscard]] xcb_atom_t atom(const QByteArray &name) const;
    [[nodiscard]] QByteArrayList namesOf(const QByteArray &atoms) const;
    Event waitFor(const IsWanted &isWanted) const;
    Event nextEvent(const QDeadlineTimer &deadline) const;
    Result<Content, Failure> takeProperty();
    Result<Content, Failure> takePieces();

    xcb_connection_t *const m_connection;
    const xcb_window_t m_window;
    const xcb_atom_t m_selection;
    const xcb_atom_t m_property;
    quint64 m_left; // of the bytes that may come
};
