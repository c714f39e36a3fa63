// SPDX-License-Identifier: MIT
// SessionBusState says whether there is a session bus, and who is on it.
// Thread: any. Each function waits for the bus for at most two seconds, once it is connected.
#pragma once

#include <QString>

#include <optional>

/// Why there is no session bus, in English; absent if there is one. Connects to it.
std::optional<QString> sessionBusFault();

/// Whether a program has that name on the bus now. False without a bus.
bool isOnSessionBus(const QString &busName);

/// Whether the bus has a service file for the name, by which it starts the program.
bool canSessionBusStart(const QString &busName);
