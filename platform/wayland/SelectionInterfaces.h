// SPDX-License-Identifier: MIT
// SelectionInterfaces are the tables of the Wayland protocols for selections that libwayland lacks. They are
// variants of one protocol: a manager makes a device for each seat, the device reports offers, and an offer
// is written to a pipe.
//
// Data control, in the versions of ext-data-control and of wlroots, gives selections to programs without a
// window. Primary selection gives PRIMARY to the program with the focus only; the clipboard of that program
// comes through wl_data_device.
// Thread: any; constants.
#pragma once

#include <wayland-util.h>

#include <array>
#include <cstdint>

class WaylandConnection;

class SelectionInterfaces {
public:
    // Requests, by opcode; those of wl_data_device_manager and wl_data_source have the same.
    enum ManagerRequest : uint32_t { CreateSource, GetDevice };
    enum DeviceRequest : uint32_t { SetSelection, Destroy, SetPrimarySelection };
    enum SourceRequest : uint32_t { Offer };
    // Events, by opcode.
    enum DeviceEvent : uint32_t { DataOffer, Selection, Finished, PrimarySelection };
    enum SourceEvent : uint32_t { Send, Cancelled };
    enum OfferEvent : uint32_t { OfferedType };

    SelectionInterfaces(const SelectionInterfaces &) = delete;
    SelectionInterfaces &operator=(const SelectionInterfaces &) = delete;

    /// The variant of data control that the compositor offers; null if it offers none.
    static const SelectionInterfaces *offeredDataControl(const WaylandConnection &connection);
    static const SelectionInterfaces &extDataControl();
    static const SelectionInterfaces &wlrootsDataControl(); ///< version 1 has no PRIMARY
    static const SelectionInterfaces &primarySelection();

    [[nodiscard]] const wl_interface &manager() const { return m_manager; }
    [[nodiscard]] const wl_interface &device() const { return m_device; }
    [[nodiscard]] const wl_interface &source() const { return m_source; }

private:
    struct Names {
        const char *manager;
        const char *device;
        const char *source;
        const char *offer;
    };
    enum class Kind { DataControl, PrimarySelection };

    SelectionInterfaces(const Names &names, int version, Kind kind);

    // The types of the arguments, one for each argument; null for numbers, texts and descriptors.
    std::array<const wl_interface *, 2> m_noTypes{};
    std::array<const wl_interface *, 1> m_newSource{&m_source};
    std::array<const wl_interface *, 2> m_newDevice;
    std::array<const wl_interface *, 2> m_setSource{&m_source, nullptr};
    std::array<const wl_interface *, 1> m_reportOffer{&m_offer};

    std::array<wl_message, 3> m_managerRequests;
    std::array<wl_message, 3> m_deviceRequests;
    std::array<wl_message, 4> m_deviceEvents;
    std::array<wl_message, 2> m_sourceRequests;
    std::array<wl_message, 2> m_sourceEvents;
    std::array<wl_message, 2> m_offerRequests;
    std::array<wl_message, 1> m_offerEvents;

    wl_interface m_manager;
    wl_interface m_device;
    wl_interface m_source;
    wl_interface m_offer;
};
