// SPDX-License-Identifier: MIT
// What the commands have in common that open a window: they send a service message to the program that
// provides the services, as a menu of services does.
// Thread: main.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QString>

/// Who hears of a failure. A command that a shortcut has started has no terminal to tell it in.
enum class FailureReport { StandardError, StandardErrorAndNotification };

/// Does what must come before a service message (the first-launch step, the display and the locale for the
/// bus, the activation token of this process), sends it and waits until it is done. Gives the exit status of
/// the command: 0, or 1 once the failure is told. message: as "wordCountSelectedTextService".
int deliverServiceMessage(const QString &message, const Pasteboard &pasteboard, FailureReport report);

/// Tells a failure, in a sentence with or without capital and full stop; gives the exit status 1.
int tellFailure(const QString &cause, FailureReport report);
