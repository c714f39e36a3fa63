// SPDX-License-Identifier: MIT
// ApplicationActivitySource tells an ApplicationActivity what the window system says: a program is active as
// long as one of its windows has the keyboard.
// Thread: main.  Owner: main() of a program with windows; made once QGuiApplication is there.
#pragma once

#include "platform/views/ApplicationActivity.h"

#include <QObject>

class ApplicationActivitySource : public QObject {
    Q_OBJECT

public:
    /// Tells at once how it is. activity: outlives the source.
    explicit ApplicationActivitySource(ApplicationActivity &activity, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tell();

    ApplicationActivity &m_activity;
};
