// SPDX-License-Identifier: MIT
// ServicesProvider does what the user chooses in the services menu; ServicesRegistration delivers the
// messages.
// Thread: main.
#pragma once

#include "platform/pasteboard/Pasteboard.h"

#include <QString>

class ServicesProvider {
public:
    virtual ~ServicesProvider() = default;

    // userData: ignored. error: receives the message of a failure; may be null.
    virtual void wordCountSelectedTextService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) = 0;
    virtual void watchTheTextFileService(
        const Pasteboard &pasteboard, const QString &userData, QString *error) = 0;
};
