// SPDX-License-Identifier: MIT
// MediaType is the name of a form of content, as "text/plain;charset=utf-8" (RFC 2045).
// Thread: any; a value. Used inside this folder only.
#pragma once

#include <QByteArray>
#include <QString>

struct MediaType {
    QString name; ///< lower case, without parameters
    QByteArray charset; ///< lower case; empty where none is named

    /// Never fails: what is no media type is a name that nobody knows.
    static MediaType parse(const QString &text);
};
