// SPDX-License-Identifier: MIT
#include "platform/shortcuts/GSettingsShortcut.h"

const GSettingsLayout gnomeLayout{.desktop = "GNOME",
    .listSchema = "org.gnome.settings-daemon.plugins.media-keys",
    .listKey = "custom-keybindings",
    .itemSchema = "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding",
    .itemFolder = "/org/gnome/settings-daemon/plugins/media-keys/custom-keybindings/",
    .listsPaths = true,
    .newItem = "quillbay",
    .commandKey = "command",
    .hasManyKeys = false,
    .otherSchemas = {"org.gnome.settings-daemon.plugins.media-keys", "org.gnome.desktop.wm.keybindings",
        "org.gnome.shell.keybindings", "org.gnome.mutter.keybindings",
        "org.gnome.mutter.wayland.keybindings"}};

// The settings dialog takes the end of a name for a number.
const GSettingsLayout cinnamonLayout{.desktop = "Cinnamon",
    .listSchema = "org.cinnamon.desktop.keybindings",
    .listKey = "custom-list",
    .itemSchema = "org.cinnamon.desktop.keybindings.custom-keybinding",
    .itemFolder = "/org/cinnamon/desktop/keybindings/custom-keybindings/",
    .listsPaths = false,
    .newItem = "custom%1",
    .commandKey = "command",
    .hasManyKeys = true,
    .otherSchemas = {"org.cinnamon.desktop.keybindings", "org.cinnamon.desktop.keybindings.wm",
        "org.cinnamon.desktop.keybindings.media-keys", "org.cinnamon.muffin.keybindings"}};

const GSettingsLayout mateLayout{.desktop = "MATE",
    .listSchema = nullptr,
    .listKey = nullptr,
    .itemSchema = "org.mate.control-center.keybinding",
    .itemFolder = "/org/mate/desktop/keybindings/",
    .listsPaths = false,
    .newItem = "quillbay",
    .commandKey = "action",
    .hasManyKeys = false,
    .otherSchemas = {"org.mate.SettingsDaemon.plugins.media-keys", "org.mate.Marco.global-keybindings",
        "org.mate.Marco.window-keybindings", "org.mate.Marco.keybinding-commands"}};
