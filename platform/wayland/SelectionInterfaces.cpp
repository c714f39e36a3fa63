// SPDX-License-Identifier: MIT
#include "platform/wayland/SelectionInterfaces.h"

#include "platform/wayland/WaylandConnection.h"

#include <wayland-client-protocol.h>

SelectionInterfaces::SelectionInterfaces(const Names &names, int version, Kind kind)
    : m_newDevice{&m_device, &wl_seat_interface}
    , m_managerRequests{{{"create_data_source", "n", m_newSource.data()},
          {"get_data_device", "no", m_newDevice.data()}, {"destroy", "", nullptr}}}
    , m_deviceRequests{{{"set_selection", kind == Kind::DataControl ? "?o" : "?ou", m_setSource.data()},
          {"destroy", "", nullptr}, {"set_primary_selection", "?o", m_setSource.data()}}}
    , m_deviceEvents{{{"data_offer", "n", m_reportOffer.data()}, {"selection", "?o", m_reportOffer.data()},
          {"finished", "", nullptr}, {"primary_selection", "?o", m_reportOffer.data()}}}
    , m_sourceRequests{{{"offer", "s", m_noTypes.data()}, {"destroy", "", nullptr}}}
    , m_sourceEvents{{{"send", "sh", m_noTypes.data()}, {"cancelled", "", nullptr}}}
    , m_offerRequests{{{"receive", "sh", m_noTypes.data()}, {"destroy", "", nullptr}}}
    , m_offerEvents{{{"offer", "s", m_noTypes.data()}}}
    , m_manager{names.manager, version, 3, m_managerRequests.data(), 0, nullptr}
    // The device of the primary selection lacks the later requests and events.
    , m_device{names.device, version, kind == Kind::DataControl ? 3 : 2, m_deviceRequests.data(),
          kind == Kind::DataControl ? 4 : 2, m_deviceEvents.data()}
    , m_source{names.source, version, 2, m_sourceRequests.data(), 2, m_sourceEvents.data()}
    , m_offer{names.offer, version, 2, m_offerRequests.data(), 1, m_offerEvents.data()}
{
}

const SelectionInterfaces *SelectionInterfaces::offeredDataControl(const WaylandConnection &connection)
{
    for (const SelectionInterfaces *const known : {&extDataControl(), &wlrootsDataControl()}) {
        if (connection.offers(known->manager()))
            return known;
    }
    return nullptr;
}

const SelectionInterfaces &SelectionInterfaces::extDataControl()
{
    static const SelectionInterfaces interfaces(
        {"ext_data_control_manager_v1", "ext_data_control_device_v1", "ext_data_control_source_v1",
            "ext_data_control_offer_v1"},
        1, Kind::DataControl);
    return interfaces;
}

const SelectionInterfaces &SelectionInterfaces::wlrootsDataControl()
{
    static const SelectionInterfaces interfaces(
        {"zwlr_data_control_manager_v1", "zwlr_data_control_device_v1", "zwlr_data_control_source_v1",
            "zwlr_data_control_offer_v1"},
        2, Kind::DataControl);
    return interfaces;
}

const SelectionInterfaces &SelectionInterfaces::primarySelection()
{
    static const SelectionInterfaces interfaces(
        {"zwp_primary_selection_device_manager_v1", "zwp_primary_selection_device_v1",
            "zwp_primary_selection_source_v1", "zwp_primary_selection_offer_v1"},
        1, Kind::PrimarySelection);
    return interfaces;
}
