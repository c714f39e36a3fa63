// SPDX-License-Identifier: MIT
// Selection reads what the user has selected or copied in any application, without a toolkit: from the
// Wayland compositor, if it shows selections to every program; otherwise from the X display, including
// Xwayland (ICCCM 2.0, chapter 2); and where there is none, from the compositor with a window that has the
// focus for a moment.
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
        NothingShown, ///< the Wayland compositor shows it to no program without the focus, and gave no focus
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

/// The cause and a remedy if there is one, in the user's language, on one line without a full stop.
QString causeText(const SelectionFailure &failure);

/// For Text: the richest form that is not empty, and a plain text form. For Files: the first list of files.
/// Requests no other forms, since each may be large. maxBytes: of all forms together. Needs no event loop,
/// and waits at most two seconds for each piece.
Result<Pasteboard, SelectionFailure> readSelection(
    SelectionName name, SelectionContent content, quint64 maxBytes);
