// SPDX-License-Identifier: MIT
// The symbols that Quillbay draws itself, in the text colour of buttons: the same on every desktop, sharp at
// every scale, visible in light and dark themes.
// Thread: main.
#pragma once

#include <QIcon>

namespace SymbolIcon {

/// A null icon for names other than those of Quillbay's symbols.
QIcon load(const QString &name);

} // namespace SymbolIcon
