// SPDX-License-Identifier: MIT
// Shows the user a short notice in the way of his desktop (org.freedesktop.Notifications).
// Thread: main.
#pragma once

#include <QString>

/// summary: one line; body: plain text. False where no notification server takes it: there is no bus, no
/// server, or it does not answer within two seconds.
bool showUserNotification(const QString &summary, const QString &body);
