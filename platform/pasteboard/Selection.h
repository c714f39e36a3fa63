// SPDX-License-Identifier: MIT
// Selection reads what the user has selected or copied in any application, without a window or a toolkit:
// from the X display, including Xwayland (ICCCM 2.0, chapter 2), or with wl-paste(1), if it is installed,
// from a Wayland compositor that hides the selection from X clients.
// Thread: any.
#pragma once

#include "platform/pasteboard/Pasteboard.h"
#include "platform/system/Result.h"

enum class SelectionName {
    Primary, ///< what is selected now
    Clipboard, ///< what was copied last
};

enum class SelectionContent { Text, Files };

struct SelectionFailure {
    enum class Cause {
        NoDisplay,
        NothingSelected,
        NothingShown, ///< or the Wayland compositor hides it from X clients, and wl-paste is not installed
        OtherContent, ///< there is something, but no text or no files
        Refused, ///< the owner does not list its forms, and provides none
        NoAnswer, ///< from the owner within two seconds, or an incomplete one
        TooLarge,
        NotEnoughMemory,
    };

    Cause cause;
    SelectionName name;
    SelectionContent content;
};

/// The cause and a remedy if there is one, in English, on one line without a full stop.
QString causeText(const SelectionFailure &failure);

/// For Text: the richest form that is not empty, and a plain text form. For Files: the first list of files.
/// Requests no other forms, since each may be large. maxBytes: of all forms together. Needs no event loop,
/// and waits at most two seconds for each piece.
Result<Pasteboard, SelectionFailure> readSelection(
    SelectionName name, SelectionContent content, quint64 maxBytes);
