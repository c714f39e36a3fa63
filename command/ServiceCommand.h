// SPDX-License-Identifier: MIT
// Asks the service provider for a service, as a desktop's menu of services does: the common part of the
// commands that open windows.
// Thread: main.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QString>

/// Where a failure is reported. A command started by a keyboard shortcut has no terminal.
enum class FailureReport { StandardError, StandardErrorAndNotification };

/// Prepares the session (first-launch step, display and locale of the bus, activation token), has the service
/// performed and waits until it is done. Returns the exit status: 0, or 1 after reporting the failure.
/// service: as "wordCountSelectedTextService".
int performService(const QString &service, const Pasteboard &pasteboard, FailureReport report);

/// cause: with or without capital and full stop; the notification adds them. Returns the exit status 1.
int reportFailure(const QString &cause, FailureReport report);
