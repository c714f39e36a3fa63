// SPDX-License-Identifier: MIT
// ServiceMessageSender sends a service message to the program that provides the services, as a services menu
// does. The session bus starts that program.
// Thread: any.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QString>
#include <QVariantMap>

#include <optional>

/// Why a service did not do what the message asked for.
struct ServiceMessageFailure {
    enum class Cause {
        NoBus, ///< there is no session bus
        NoProvider, ///< the bus cannot start the program, or it does not answer; text is from the bus
        Refused, ///< text is the error of the service, word for word
    };

    Cause cause;
    QString text;
};

/// The cause in the user's language, on one line.
QString causeText(const ServiceMessageFailure &failure);

/// Whether the environment names a display, which may have ended.
bool isInSessionWithDisplay();

/// Hands the display and the locale of this process to the session bus, and through it to systemd: a program
/// that the bus starts gets neither from its caller. Unset variables become empty there. False if there is no
/// bus.
bool exportSessionEnvironment();

/// message: the part of the operation's name before its arguments, as "wordCountSelectedTextService". Waits
/// for the answer for at most a minute. Absent once the service has done it.
std::optional<ServiceMessageFailure> sendServiceMessage(
    const QString &message, const Pasteboard &pasteboard, const QVariantMap &options = {});
