// SPDX-License-Identifier: MIT
// SelectionSource is the interface of a program or display that provides a selection, one form after another.
// Used inside this folder only.
// Thread: any, one at a time.  Owner: readSelection().
#pragma once

#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayList>

class SelectionSource {
public:
    enum class Failure {
        Refused, ///< the owner does not have it in that form
        NoAnswer, ///< within two seconds, or the display was lost
        TooLarge,
    };
    struct Content {
        QByteArray type; ///< the name of the encoding, as in ICCCM
        QByteArray bytes;
    };

    SelectionSource() = default;
    SelectionSource(const SelectionSource &) = delete;
    SelectionSource &operator=(const SelectionSource &) = delete;
    virtual ~SelectionSource() = default;

    /// Whether anything is selected.
    [[nodiscard]] virtual bool hasOwner() = 0;
    /// The names of the forms that the owner offers, at most a few hundred. Refused if it does not list them.
    virtual Result<QByteArrayList, Failure> targets() = 0;
    virtual Result<Content, Failure> convert(const QByteArray &target) = 0;
};
