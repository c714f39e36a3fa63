// SPDX-License-Identifier: MIT
#include "platform/shortcuts/DesktopShortcut.h"
#include "platform/shortcuts/GSettingsShortcut.h"
#include "platform/shortcuts/KdeShortcut.h"
#include "platform/shortcuts/LxqtShortcut.h"
#include "platform/shortcuts/XfceShortcut.h"

std::unique_ptr<DesktopShortcut> shortcutOfCurrentDesktop(ShortcutCommand command)
{
    // "ubuntu:GNOME", "Budgie:GNOME" and the like: what the desktop is derived from comes last.
    for (const QString &name : qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':', Qt::SkipEmptyParts)) {
        if (name == QLatin1String("GNOME"))
            return std::make_unique<GSettingsShortcut>(gnomeLayout, std::move(command));
        if (name == QLatin1String("X-Cinnamon") || name == QLatin1String("Cinnamon"))
            return std::make_unique<GSettingsShortcut>(cinnamonLayout, std::move(command));
        if (name == QLatin1String("MATE"))
            return std::make_unique<GSettingsShortcut>(mateLayout, std::move(command));
        if (name == QLatin1String("XFCE"))
            return std::make_unique<XfceShortcut>(std::move(command));
        if (name == QLatin1String("KDE"))
            return std::make_unique<KdeShortcut>(std::move(command));
        if (name == QLatin1String("LXQt"))
            return std::make_unique<LxqtShortcut>(std::move(command));
    }
    return nullptr;
}
