// SPDX-License-Identifier: MIT
// What the user has copied from a window outlives the program: a small program, the keeper, takes it over and
// gives it to the desktop's clipboard manager, or keeps it until another program copies something.
// Thread: main.
#pragma once

#include <QString>

#include <chrono>

namespace ClipboardHandOver {

/// For this long the program waits for the keeper.
constexpr std::chrono::seconds timeout{2};

/// To be called when the program is about to exit, before its QApplication is destroyed. Does nothing unless
/// this program owns the clipboard of an X display. Otherwise starts the keeper and runs the event loop, in
/// which it reads the content, until it owns the clipboard. (Qt itself would give it to a clipboard manager
/// only, and wait five seconds for one that does not answer.) keeper: the path of quillbay-clipboard-keeper.
void finish(const QString &keeper);

} // namespace ClipboardHandOver
