// SPDX-License-Identifier: MIT
// The widgets that show views: Qt's own where there is one (QLabel, QPushButton), which brings accessibility,
// themes and screen scaling. Their geometry and visibility are left to ViewBinding.
// Thread: main.
#pragma once

class QWidget;
class View;

/// A hidden widget that follows the content of the view, without its subviews. Owned by the parent.
QWidget *makeViewWidget(View &view, QWidget *parent);
