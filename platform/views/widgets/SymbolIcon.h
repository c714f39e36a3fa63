// SPDX-License-Identifier: MIT
// SymbolIcon is a symbol that Quillbay draws itself, in the colour of the text of buttons: the same on every
// desktop, sharp at every scale, visible on light and on dark ground.
// Thread: main.
#pragma once

#include <QIcon>

namespace SymbolIcon {

/// A null icon for names that are none of Quillbay's symbols.
QIcon named(const QString &name);

} // namespace SymbolIcon
