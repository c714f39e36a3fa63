// SPDX-License-Identifier: MIT
// PaintedWidget shows what a view draws itself, BoxWidget a box.
// Thread: main.  Owner: the parent widget; the view may go away first.
#pragma once

#include <QPointer>
#include <QWidget>

class Box;
class View;

class PaintedWidget : public QWidget {
public:
    PaintedWidget(View &view, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<View> m_view;
};

class BoxWidget : public PaintedWidget {
public:
    BoxWidget(Box &box, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<Box> m_box;
};
