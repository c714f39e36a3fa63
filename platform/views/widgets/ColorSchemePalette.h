// SPDX-License-Identifier: MIT
// The colours of the program in the scheme that the user wants, where the desktop does not bring them itself.
// Thread: main.
#pragma once

enum class ColorScheme {
    NoPreference,
    Dark,
    Light,
};

/// Gives the program the palette of the desktop, and one of the project where that is not of the wanted
/// scheme.
void applyColorScheme(ColorScheme scheme);
