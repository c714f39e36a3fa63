// SPDX-License-Identifier: MIT
// LabelWidget shows a line of text as it is. If it is wider than the widget, the middle is left out, so that
// the beginning and the extension of a file's name stay readable; if the font is higher, a smaller one is
// used.
// Thread: main.
#pragma once

#include <QLabel>

class LabelWidget : public QLabel {
public:
    explicit LabelWidget(QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;
};
