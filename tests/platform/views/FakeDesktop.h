// SPDX-License-Identifier: MIT
// FakeDesktop is a desktop without a screen: it records the calls, and the test answers for the user.
// Thread: main.  Owner: the test; outlives all its users.
#pragma once

#include "platform/views/Desktop.h"
#include "platform/views/Window.h"

#include <deque>
#include <optional>
#include <utility>
#include <vector>

class FakeDesktop final : public Desktop {
public:
    [[nodiscard]] std::unique_ptr<WindowOnScreen> putOnScreen(std::shared_ptr<Window> window) override
    {
        ++numberOnScreen;
        return std::make_unique<OnScreen>(std::move(window), numberOnScreen);
    }

    void setActivationToken(const QByteArray &token) override { activationTokens.append(token); }
    [[nodiscard]] std::optional<QPointF> pointerLocation() const override { return pointer; }
    [[nodiscard]] std::optional<QRectF> visibleFrameAtPointer() const override
    {
        return pointer || !hasSeveralScreens ? std::optional(visibleFrame) : std::nullopt;
    }
    [[nodiscard]] QRectF visibleFrameAt(const QPointF & /*point*/) const override { return visibleFrame; }

    void beep() override { notes.append(QStringLiteral("beep")); }
    void runAlert(const Alert &alert, AlertCompletion completion) override
    {
        notes.append(QStringLiteral("alert: ") + alert.messageText);
        m_alerts.emplace_back(alert, std::move(completion));
    }
    void presentError(const QString &text) override
    {
        const QString note = QStringLiteral("error: ") + text;
        if (!notes.contains(note))
            notes.append(note);
    }
    void beginOpenPanel(const OpenPanel &panel, OpenPanel::Completion completion) override
    {
        notes.append(QStringLiteral("open panel"));
        m_panels.emplace_back(panel, std::move(completion));
    }

    [[nodiscard]] bool isAskingUser() const override { return !m_alerts.empty() || !m_panels.empty(); }
    void setAskingEndedHandler(std::function<void()> handler) override { m_askingEnded = std::move(handler); }

    // The oldest question to the user; there must be one.
    [[nodiscard]] const Alert &alert() const { return m_alerts.front().first; }
    [[nodiscard]] const OpenPanel &openPanel() const { return m_panels.front().first; }
    [[nodiscard]] size_t numberOfAlerts() const { return m_alerts.size(); }
    [[nodiscard]] size_t numberOfOpenPanels() const { return m_panels.size(); }

    // Answer the oldest question.
    void pressAlertButton(int button)
    {
        const AlertCompletion completion = std::move(m_alerts.front().second);
        m_alerts.pop_front();
        completion(button);
        reportAskingEnded();
    }
    void confirmOpenPanel(const QList<QUrl> &urls) { endOpenPanel(urls); }
    void cancelOpenPanel() { endOpenPanel(std::nullopt); }

    int numberOnScreen = 0;
    QStringList notes; ///< "beep", "alert: MESSAGE", "error: TEXT", "open panel"
    QByteArrayList activationTokens;
    std::optional<QPointF> pointer = QPointF();
    bool hasSeveralScreens = false;
    QRectF visibleFrame{0, 0, 1280, 800};

private:
    class OnScreen final : public WindowOnScreen {
    public:
        OnScreen(std::shared_ptr<Window> window, int &number)
            : m_window(std::move(window))
            , m_number(number)
        {
        }
        ~OnScreen() override { --m_number; }

    private:
        std::shared_ptr<Window> m_window;
        int &m_number;
    };

    void endOpenPanel(const std::optional<QList<QUrl>> &urls)
    {
        const OpenPanel::Completion completion = std::move(m_panels.front().second);
        m_panels.pop_front();
        completion(urls);
        reportAskingEnded();
    }
    void reportAskingEnded() const
    {
        if (!isAskingUser() && m_askingEnded)
            m_askingEnded();
    }

    std::deque<std::pair<Alert, AlertCompletion>> m_alerts;
    std::deque<std::pair<OpenPanel, OpenPanel::Completion>> m_panels;
    std::function<void()> m_askingEnded;
};
