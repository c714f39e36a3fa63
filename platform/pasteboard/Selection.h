// SPDX-License-Identifier: MIT
// Selection is what the user has selected or copied in whatever application, read without a window or a
// toolkit of our own: from the X display, Xwayland included (ICCCM 2.0, chapter 2), or where the Wayland
// compositor keeps it from X clients, by wl-paste(1) if that is installed. Thread: any.
#pragma once

#include "platform/pasteboard/Pasteboard.h"
#include "platform/system/Result.h"

enum class SelectionName {
    Primary, ///< what is selected at the moment
    Clipboard, ///< what was copied last
};

enum class SelectionContent { Text, Files };

struct SelectionFailure {
    enum class Cause {
        NoDisplay,
        NothingSelected,
        NothingShown, ///< or the Wayland compositor keeps it from X clients, and there is no wl-paste
        OtherContent, ///< there is something, but in no form of that content
        Refused, ///< the owner does not say which forms it has, and hands none over
        NoAnswer, ///< of the owner, for two seconds, or in the middle of its answer
        TooLarge,
        NotEnoughMemory,
    };

    Cause cause;
    SelectionName name;
    SelectionContent content;
};

/// What failed and where there is one the remedy, in English, on one line and without a full stop.
QString causeText(const SelectionFailure &failure);

/// Of Text the richest form that is not empty, and a form as plain text; of Files the first list of files
/// that there is. Asks the owner for no others, as each may be large. largest: bytes of all forms together.
/// Needs no event loop, and never waits longer than two seconds for a next piece.
Result<Pasteboard, SelectionFailure> readSelection(
    SelectionName name, SelectionContent content, quint64 largest);
