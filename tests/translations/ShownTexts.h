// SPDX-License-Identifier: MIT
// ShownTexts collects every text that the widgets of this process show or read out: titles, labels, menus,
// tool tips, and what a screen reader gets.
// Thread: main.
#pragma once

#include <QString>

#include <vector>

struct ShownText {
    QString text;
    QString where; ///< for the reader of a failure: the widget and the property
};

/// Of all widgets, hidden ones too. Not the contents of text fields, which are the user's.
std::vector<ShownText> shownTexts();
