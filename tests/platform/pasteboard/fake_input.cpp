// SPDX-License-Identifier: MIT
// fake_input [KEYS | X,Y]…: plays keyboard and mouse in KWin, through org_kde_kwin_fake_input. KEYS: codes of
// linux/input-event-codes.h, pressed together, as 29+30 for Ctrl+A. X,Y: moves the pointer there.
#include "platform/wayland/WaylandConnection.h"

#include <QByteArrayList>

#include <array>
#include <cstdio>

namespace {

enum Request : uint32_t { Authenticate = 0, MovePointer = 9, PressKey = 10 };

std::array<const wl_interface *, 3> noTypes{};
const std::array<wl_message, 11> requests{
    {{"authenticate", "ss", noTypes.data()}, {"pointer_motion", "ff", noTypes.data()},
        {"button", "uu", noTypes.data()}, {"axis", "uf", noTypes.data()},
        {"touch_down", "2uff", noTypes.data()}, {"touch_motion", "2uff", noTypes.data()},
        {"touch_up", "2u", noTypes.data()}, {"touch_cancel", "2", nullptr}, {"touch_frame", "2", nullptr},
        {"pointer_motion_absolute", "3ff", noTypes.data()}, {"keyboard_key", "4uu", noTypes.data()}}};
const wl_interface fakeInput{"org_kde_kwin_fake_input", 4, requests.size(), requests.data(), 0, nullptr};

constexpr uint32_t released = 0;
constexpr uint32_t pressed = 1;

void setState(const WaylandConnection::Object &input, const QByteArrayList &codes, uint32_t state)
{
    for (const QByteArray &code : codes)
        WaylandConnection::request(input, PressKey, {{.u = code.toUInt()}, {.u = state}});
}

} // namespace

int main(int argumentCount, char **arguments)
{
    WaylandConnection connection;
    const WaylandConnection::Object input = connection.bind(fakeInput);
    if (!input) {
        std::fputs("fake_input: the compositor does not offer org_kde_kwin_fake_input\n", stderr);
        return 1;
    }
    WaylandConnection::request(input, Authenticate, {{.s = "fake_input"}, {.s = "test"}});
    for (int i = 1; i < argumentCount; ++i) {
        const QByteArray word = arguments[i];
        if (word.contains(',')) {
            const QByteArrayList place = word.split(',');
            WaylandConnection::request(input, MovePointer,
                {{.f = wl_fixed_from_int(place[0].toInt())}, {.f = wl_fixed_from_int(place[1].toInt())}});
            continue;
        }
        setState(input, word.split('+'), pressed);
        setState(input, word.split('+'), released);
    }
    return connection.synchronize(QDeadlineTimer(5000)) ? 0 : 1;
}
