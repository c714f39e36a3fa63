// SPDX-License-Identifier: MIT
// AnswerGuard keeps keys from answering a dialog that has come up by itself: what the user types in its first
// second was meant for the window before it. A click answers at once.
// Thread: main.  Owner: the dialog.
#pragma once

#include "platform/system/Clock.h"

#include <QObject>

class QDialog;

class AnswerGuard : public QObject {
public:
    static constexpr std::chrono::seconds guardedTime{1};

    /// Begins now. clock: outlives the dialog.
    AnswerGuard(QDialog &dialog, const Clock &clock);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QDialog &m_dialog;
    const Clock &m_clock;
    const Clock::Time m_start;
};
