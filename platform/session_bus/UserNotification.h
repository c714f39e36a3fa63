// SPDX-License-Identifier: MIT
// UserNotification shows the user a short notice through their desktop (org.freedesktop.Notifications).
// Thread: any.
#pragma once

#include <QString>

/// summary: one line; body: plain text. False if no notification server accepts it: there is no bus, no
/// server, or it does not answer within two seconds.
bool showUserNotification(const QString &summary, const QString &body);
