// SPDX-License-Identifier: MIT
// ServiceCall calls a service of the desktop on the session bus.
// Thread: any.
#pragma once

#include "platform/system/Result.h"

#include <QString>
#include <QVariant>

/// An object of a service on the bus and its interface.
struct DesktopService {
    const char *name;
    const char *path;
    const char *interface;
};

/// What the method returns. Waits for three seconds at most.
Result<QVariantList, QString> callService(
    const DesktopService &service, const char *method, const QVariantList &arguments = {});
