// SPDX-License-Identifier: MIT
// WaylandSocket says whether a Wayland compositor can be reached; it speaks no protocol.
// Thread: any.
#pragma once

/// Whether something listens where WAYLAND_DISPLAY says.
bool isWaylandCompositorListening();
