// SPDX-License-Identifier: MIT
// SelectionTransfer requests a selection from its owner on the X display, large contents in pieces (ICCCM
// 2.7.2, INCR). Used inside this folder only.
// Thread: any, one at a time.  Owner: readSelection().
#pragma once

#include "platform/pasteboard/SelectionSource.h"

#include <xcb/xcb.h>

#include <functional>
#include <map>
#include <memory>

class QDeadlineTimer;

class SelectionTransfer final : public SelectionSource {
public:
    /// connection: must outlive this object. maxBytes: of all contents together.
    SelectionTransfer(xcb_connection_t *connection, const char *selection, quint64 maxBytes);
    ~SelectionTransfer() override;

    [[nodiscard]] bool hasOwner() override;
    Result<QByteArrayList, Failure> targets() override;
    Result<Content, Failure> convert(const QByteArray &target) override;

private:
    using Event = std::unique_ptr<xcb_generic_event_t, decltype(&std::free)>;
    using IsWanted = std::function<bool(const xcb_generic_event_t &event)>;

    [[nodiscard]] xcb_atom_t atom(const QByteArray &name) const;
    [[nodiscard]] QByteArrayList namesOf(const QByteArray &atoms) const;
    [[nodiscard]] Event waitFor(const IsWanted &isWanted) const;
    [[nodiscard]] Event nextEvent(const QDeadlineTimer &deadline) const;
    Result<Content, Failure> takeProperty();
    Result<Content, Failure> takePieces();

    xcb_connection_t *const m_connection;
    const xcb_window_t m_window;
    const xcb_atom_t m_selection;
    const xcb_atom_t m_property;
    quint64 m_bytesLeft; // of maxBytes
};
