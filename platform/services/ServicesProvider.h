// SPDX-License-Identifier: MIT
// ServicesProvider is who does what the user asks for in the menu of services; ServicesRegistration brings
// him the messages. Thread: main.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QString>

class ServicesProvider {
public:
    virtual ~ServicesProvider() = default;

    // userData: ignored by all. error: takes the message of a failure; may be null.
    virtual void wordCountSelectedTextService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) = 0;
    virtual void watchTheTextFileService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) = 0;
};
