// SPDX-License-Identifier: MIT
// SelectionSource is whoever hands a selection over, in one form after the other.
// Thread: one.  Owner: readSelection(). Used inside this folder only.
#pragma once

#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayList>

class SelectionSource {
public:
    enum class Failure {
        Refused, ///< the owner does not have it in that form
        NoAnswer, ///< for two seconds, or the display has gone
        TooLarge,
    };
    struct Content {
        QByteArray type; ///< the name of the encoding, as ICCCM has it
        QByteArray bytes;
    };

    SelectionSource() = default;
    SelectionSource(const SelectionSource &) = delete;
    SelectionSource &operator=(const SelectionSource &) = delete;
    virtual ~SelectionSource() = default;

    /// Whether anything is selected.
    [[nodiscard]] virtual bool hasOwner() = 0;
    /// The names of the forms that the owner says to have: the first few hundred. Refused where it does not
    /// say.
    virtual Result<QByteArrayList, Failure> targets() = 0;
    virtual Result<Content, Failure> convert(const QByteArray &target) = 0;
};
