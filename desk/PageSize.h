// SPDX-License-Identifier: MIT
// The size of a page of the main window, which scrolls where the screen is too small for it.
// Thread: main.
#pragma once

#include <QSize>

class QScrollArea;

/// That of the content, with room for the scroll bar that appears when the height does not suffice.
QSize sizeOfContent(const QScrollArea &page);
