// SPDX-License-Identifier: MIT
// WidgetDesktop is the user's desktop by way of Qt's widgets: real windows, message boxes and the desktop's
// file chooser.
// Thread: main.  Owner: main() of a program with windows; outlived by its QApplication.
#pragma once

#include "platform/system/Clock.h"
#include "platform/views/Desktop.h"

#include <QPointer>
#include <QSet>
#include <QWidget>

#include <vector>

class QDialog;

class WidgetDesktop final : public Desktop {
public:
    /// For this long keys do not answer an alert or an error, which opens by itself: what the user types was
    /// meant for the window before it. A click answers at once.
    static constexpr std::chrono::seconds guardedTime{1};

    /// clock: outlives the desktop.
    explicit WidgetDesktop(Clock &clock = systemClock());
    /// Closes the dialogs that are still open, without calling their completions.
    ~WidgetDesktop() override;

    [[nodiscard]] std::unique_ptr<WindowOnScreen> putOnScreen(std::shared_ptr<Window> window) override;
    void setActivationToken(const QByteArray &token) override;
    [[nodiscard]] std::optional<QPointF> pointerLocation() const override;
    [[nodiscard]] std::optional<QRectF> visibleFrameAtPointer() const override;
    [[nodiscard]] QRectF visibleFrameAt(const QPointF &point) const override;
    void beep() override;
    void runAlert(const Alert &alert, AlertCompletion completion) override;
    void presentError(const QString &text) override;
    void beginOpenPanel(const OpenPanel &panel, OpenPanel::Completion completion) override;
    [[nodiscard]] bool isAskingUser() const override { return !m_dialogs.empty(); }
    void setAskingEndedHandler(std::function<void()> handler) override { m_askingEnded = std::move(handler); }

private:
    using Finish = std::function<void(QDialog &dialog, int result)>;
    /// Shows nothing. finish: called when the user has closed the dialog; result: as of QDialog::finished().
    void addDialog(std::unique_ptr<QDialog> dialog, Finish finish);
    /// For dialogs that the user has not asked for: does not take the focus.
    void showAlert(std::unique_ptr<QDialog> dialog, Finish finish);
    void removeDialog(const QDialog &dialog);

    Clock &m_clock;
    std::vector<std::unique_ptr<QDialog>> m_dialogs;
    QSet<QString> m_reportedErrors;
    std::function<void()> m_askingEnded;
};
