// SPDX-License-Identifier: MIT
// The widgets that show views: QLabel, QPushButton and the like where Qt has one, so that accessibility,
// themes and screens of any scale come from there. Where they lie and whether they show is ViewBinding's
// business. Thread: main.
#pragma once

class QWidget;
class View;

/// A hidden widget for the view without its subviews, which follows the content of the view. It belongs to
/// the parent.
QWidget *makeViewWidget(View &view, QWidget *parent);
