// SPDX-License-Identifier: MIT
// Sends a service message to the program that provides the services, as a menu of services does; the session
// bus starts that program. Thread: main.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QString>
#include <QVariantMap>

#include <optional>

/// Why a service has not done what it was asked.
struct ServiceFailure {
    enum class Cause {
        NoBus, ///< there is no session bus
        NoProvider, ///< the bus cannot start the program, or it does not answer; text is the bus's own
        Refused, ///< text is what the service says, word for word
    };

    Cause cause;
    QString text;
};

/// What failed, in English, on one line.
QString causeText(const ServiceFailure &failure);

/// Tells the session bus, and systemd behind it, the display and the locale of this process: a program that
/// the bus starts gets neither from its caller. False where there is no bus.
bool exportSessionEnvironment();

/// message: the part of the operation's name before its arguments, as "wordCountSelectedTextService". Waits
/// for the answer: a minute at most.
std::optional<ServiceFailure> sendServiceMessage(
    const QString &message, const Pasteboard &pasteboard, const QVariantMap &options = {});
