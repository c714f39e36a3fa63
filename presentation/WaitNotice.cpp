// SPDX-License-Identifier: MIT
#include "presentation/WaitNotice.h"

#include "platform/logging/LogChannel.h"
#include "platform/views/Window.h"

#include <QCoreApplication>

#include <utility>

WaitNotice::WaitNotice(const std::shared_ptr<ProgressIndicator> &spinner, Window &window, Clock &clock,
    std::function<Subject()> subject)
    : m_spinner(spinner)
    , m_window(window)
    , m_subject(std::move(subject))
    , m_timer(clock.makeTimer([this] { show(); }))
{
    connect(spinner.get(), &ProgressIndicator::animatingDidChange, this, &WaitNotice::follow);
    follow();
}

void WaitNotice::follow()
{
    const auto spinner = m_spinner.lock();
    if (spinner && spinner->isAnimating()) {
        m_timer->start(delay);
        return;
    }
    m_timer->stop();
    m_window.setNotice({});
    if (spinner)
        spinner->setToolTip({});
}

void WaitNotice::show()
{
    const auto spinner = m_spinner.lock();
    if (!spinner)
        return;
    QString text;
    if (m_subject() == Subject::Text) {
        text = QCoreApplication::translate("WaitNotice", "Still reading the text.");
        LogChannel::standard().notice(
            u"A window has waited for its text for {} seconds; a large document takes "
            u"long, closing the window stops it",
            {static_cast<qint64>(delay.count())});
    } else {
        text = QCoreApplication::translate("WaitNotice", "Still waiting for the counting service.");
        LogChannel::standard().error(
            u"A window has waited for the counting service for {} seconds; 'quillbay count --service FILE' "
            u"shows "
            u"whether it answers, and 'journalctl --user -t quillbay-counting-service' why not; if it is not "
            u"installed, install Quillbay again; then close the window and count anew",
            {static_cast<qint64>(delay.count())});
    }
    spinner->setToolTip(text);
    m_window.setNotice(text);
    m_window.announce();
}
