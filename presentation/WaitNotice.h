// SPDX-License-Identifier: MIT
// WaitNotice tells the user what a window waits for whose spinner has turned for long: in the spinner's
// tooltip and for screen readers, and in the log how to mend it. The window waits on.
// Thread: main.  Owner: the controller of the window.
#pragma once

#include "platform/system/Clock.h"
#include "platform/views/Controls.h"

#include <QObject>

#include <functional>
#include <memory>

class Window;

class WaitNotice : public QObject {
public:
    /// From the start of the spinner until the notice.
    static constexpr std::chrono::seconds delay{10};

    enum class Subject {
        Text, ///< is being read
        CountingService, ///< has not answered
    };

    /// subject: called when the notice is due. spinner: not null. clock and window: outlive the notice.
    WaitNotice(const std::shared_ptr<ProgressIndicator> &spinner, Window &window, Clock &clock,
        std::function<Subject()> subject);

private:
    void follow();
    void show();

    const std::weak_ptr<ProgressIndicator> m_spinner;
    Window &m_window;
    const std::function<Subject()> m_subject;
    const std::unique_ptr<ClockTimer> m_timer;
};
