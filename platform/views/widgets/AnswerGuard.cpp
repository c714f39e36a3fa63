// SPDX-License-Identifier: MIT
#include "platform/views/widgets/AnswerGuard.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

AnswerGuard::AnswerGuard(QDialog &dialog, const Clock &clock)
    : QObject(&dialog)
    , m_dialog(dialog)
    , m_clock(clock)
    , m_start(clock.now())
{
    qApp->installEventFilter(this);
}

bool AnswerGuard::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::ShortcutOverride)
        return false;
    const auto *const widget = qobject_cast<const QWidget *>(watched);
    if (!widget || widget->window() != &m_dialog)
        return false;
    // A key that is held since before answers nothing later either.
    const bool isHeld = type == QEvent::KeyPress && static_cast<const QKeyEvent *>(event)->isAutoRepeat();
    if (!isHeld && m_clock.now() - m_start >= guardedTime)
        return false;
    event->accept(); // an override that is accepted is no shortcut
    return true;
}
