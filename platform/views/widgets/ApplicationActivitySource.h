// SPDX-License-Identifier: MIT
// ApplicationActivitySource updates an ApplicationActivity from the window system: a program is active while
// one of its windows has the keyboard focus.
// Thread: main.  Owner: main() of a program with windows; needs the QGuiApplication.
#pragma once

#include "platform/views/ApplicationActivity.h"

#include <QObject>

class ApplicationActivitySource : public QObject {
    Q_OBJECT

public:
    /// Updates at once. activity: outlives the source.
    explicit ApplicationActivitySource(ApplicationActivity &activity, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void update();

    ApplicationActivity &m_activity;
};
