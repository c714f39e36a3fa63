// SPDX-License-Identifier: MIT
// SpinnerWidget is a progress bar without length that shows itself as a wheel of fading spokes while it
// turns, and not at all otherwise. Thread: main.  Owner: its parent widget.
#pragma once

#include <QBasicTimer>
#include <QProgressBar>

class SpinnerWidget : public QProgressBar {
public:
    explicit SpinnerWidget(QWidget *parent);

    void setTurning(bool turning);

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateTimer();

    bool m_turning = false;
    int m_step = 0; // of one turn, in spokes
    QBasicTimer m_timer;
};
