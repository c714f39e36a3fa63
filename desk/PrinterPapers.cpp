// SPDX-License-Identifier: MIT
#include "desk/PrinterPapers.h"

#include <utility>

namespace {

constexpr std::chrono::milliseconds pollInterval{100};

} // namespace

PrinterPapers::PrinterPapers()
{
    PrintSettings::shared().setTimeout(std::chrono::milliseconds(0));
    m_poll.setInterval(pollInterval);
    connect(&m_poll, &QTimer::timeout, this, &PrinterPapers::refresh);
    refresh();
}

bool PrinterPapers::isWaiting() const
{
    return m_answer.state == PrinterState::NotAnswering && m_poll.isActive();
}

void PrinterPapers::refresh()
{
    const bool wasWaiting = isWaiting();
    PrinterAnswer answer = PrintSettings::shared().printer();
    if (PrintSettings::shared().isAsking()) {
        m_poll.start();
        // Not yet known to be silent: the former answer stays, unless this is the first query.
        if (answer.state == PrinterState::NotAnswering && !m_answer.papers.empty())
            return;
    } else {
        m_poll.stop();
    }
    const PrinterAnswer former = std::exchange(m_answer, std::move(answer));
    if (former != m_answer || wasWaiting != isWaiting())
        Q_EMIT changed();
}
