// SPDX-License-Identifier: MIT
// MediaType parses the name of a form of content, as "text/plain;charset=utf-8" (RFC 2045).
// Thread: any; a value.
#pragma once

#include <QByteArray>
#include <QString>

struct MediaType {
    QString name; ///< lower case, without parameters
    QByteArray charset; ///< lower case; empty if there is none

    /// Never fails: any other text becomes an unknown name.
    static MediaType parse(const QString &text);
};
