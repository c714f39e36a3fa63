// SPDX-License-Identifier: MIT
// WaylandSelection requests a selection from its owner through the Wayland compositor. Used inside this
// folder only.
// Thread: any, one at a time.  Owner: readSelection().
#pragma once

#include "platform/pasteboard/Selection.h"
#include "platform/pasteboard/SelectionSource.h"
#include "platform/wayland/WaylandConnection.h"

#include <QByteArray>
#include <QByteArrayList>

#include <memory>
#include <optional>

class WaylandSelection final : public SelectionSource {
public:
    /// For whom the compositor has the selection.
    enum class Access {
        AnyProgram, ///< data control: for programs without a window too
        FocusedProgram, ///< only for the program that has the focus; see FocusedWindow.h
    };

    [[nodiscard]] static bool isOffered(
        const WaylandConnection &connection, Access access, SelectionName name);

    /// connection: outlives this object, and offers the access. maxBytes: of all contents together.
    WaylandSelection(WaylandConnection &connection, Access access, SelectionName name, quint64 maxBytes);
    ~WaylandSelection() override;

    [[nodiscard]] bool hasOwner() override;
    Result<QByteArrayList, Failure> targets() override;
    Result<Content, Failure> convert(const QByteArray &target) override;

    /// Identifies what is selected now, once the compositor's events have been handled: changes when the user
    /// selects something else.
    [[nodiscard]] quint64 serialNumber() const { return m_serialNumber; }

    // Only for the access of any program.
    /// A content of this program, not selected yet.
    [[nodiscard]] WaylandConnection::Object makeSource() const;
    /// Makes this program the owner of the selection. The types of the content cannot change any more.
    void setSource(const WaylandConnection::Object &source) const;

private:
    struct Variant;
    struct Offer;

    static Variant variantFor(const WaylandConnection &connection, Access access, SelectionName name);
    void handleDevice(uint32_t opcode, const wl_argument *arguments);
    Result<QByteArray, Failure> readPipe(int descriptor);

    WaylandConnection &m_connection;
    const std::unique_ptr<const Variant> m_variant;
    WaylandConnection::Object m_manager;
    WaylandConnection::Object m_seat;
    WaylandConnection::EventHandler m_deviceHandler;
    WaylandConnection::Object m_device;
    std::unique_ptr<Offer> m_newest; // reported, and not known yet for what
    std::unique_ptr<Offer> m_selected;
    quint64 m_serialNumber = 0;
    const QDeadlineTimer m_deadline; // of all contents together
    quint64 m_bytesLeft; // of maxBytes
};
