// SPDX-License-Identifier: MIT
// SpinnerWidget is an indeterminate progress bar, drawn as a wheel of fading spokes while it turns and
// invisible otherwise.
// Thread: main.
#pragma once

#include <QBasicTimer>
#include <QProgressBar>

class SpinnerWidget : public QProgressBar {
    Q_OBJECT

public:
    explicit SpinnerWidget(QWidget *parent);

    [[nodiscard]] bool isTurning() const { return m_turning; }
    void setTurning(bool turning);

protected:
    void paintEvent(QPaintEvent *event) override;
    void timerEvent(QTimerEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateTimer();

    bool m_turning = false;
    int m_step = 0; // in spokes
    QBasicTimer m_timer;
};
