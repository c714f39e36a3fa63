// SPDX-License-Identifier: MIT
#include "platform/printing/PrintSettings.h"

#include "platform/printing/BuiltInPapers.h"
#include "platform/printing/PrinterSource.h"

#include <algorithm>
#include <csignal>
#include <system_error>
#include <thread>

namespace {

PrintSettings *scopedSettings = nullptr;

// Signals belong to the main thread, and SIGPIPE must not kill the process when a server closes the
// connection.
void blockSignals()
{
    sigset_t signals;
    ::sigfillset(&signals);
    ::pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

PrinterAnswer builtInAnswer(PrinterState state)
{
    PrinterAnswer answer;
    answer.state = state;
    answer.papers = builtInPapers();
    if (state != PrinterState::NotAnswering) {
        answer.defaultPaper = builtInDefaultPaper();
        answer.pageScale = 100;
    }
    return answer;
}

// The system's default, if neither user nor printer has one. It must be one of the printer's papers, so that
// it can be found by its name.
Paper systemDefaultPaper(const std::vector<Paper> &papers)
{
    const QSizeF size = builtInDefaultPaper().size;
    const auto found = std::find_if(
        papers.begin(), papers.end(), [&](const Paper &paper) { return isSamePaperSize(paper.size, size); });
    return found == papers.end() ? papers.front() : *found;
}

PrinterAnswer makeAnswer(const Result<Printer, PrinterFailure> &result)
{
    if (!result) {
        return builtInAnswer(result.error() == PrinterFailure::NoPrinter ? PrinterState::NoPrinter
                                                                         : PrinterState::NotAnswering);
    }
    const Printer &printer = result.value();
    if (printer.papers.empty())
        return builtInAnswer(PrinterState::NoPrinter);
    return {.state = PrinterState::Answering,
        .papers = printer.papers,
        .defaultPaper = printer.defaultPaper ? *printer.defaultPaper : systemDefaultPaper(printer.papers),
        .pageScale = printer.pageScale};
}

} // namespace

PrintSettings &PrintSettings::shared()
{
    if (scopedSettings)
        return *scopedSettings;
    static auto *const settings = new PrintSettings(std::make_shared<CupsPrinterSource>());
    return *settings;
}

PrintSettings::PrintSettings(
    std::shared_ptr<PrinterSource> source, Clock clock, std::chrono::milliseconds timeout)
    : m_source(std::move(source))
    , m_clock(std::move(clock))
    , m_timeout(timeout)
{
}

PrinterAnswer PrintSettings::printer()
{
    if (waitForAnswer(std::chrono::milliseconds(0)))
        m_answer = m_pending.get();
    if (!m_answer || m_clock() - m_lastQuery >= queryInterval)
        ask();
    return makeAnswer(*m_answer);
}

bool PrintSettings::waitForAnswer(std::chrono::milliseconds timeout) const
{
    return m_pending.valid() && m_pending.wait_for(timeout) == std::future_status::ready;
}

void PrintSettings::ask()
{
    m_lastQuery = m_clock();
    std::promise<Answer> promise;
    m_pending = promise.get_future();
    // The thread owns everything that it uses, so that it may outlast this object.
    const auto query = [source = m_source](std::promise<Answer> answer) {
        blockSignals();
        answer.set_value(source->ask());
    };
    try {
        std::thread(query, std::move(promise)).detach();
    } catch (const std::system_error &) {
        m_pending = {}; // no thread is available
    }
    const bool waits = m_timeout > std::chrono::milliseconds(0);
    if (waitForAnswer(m_timeout))
        m_answer = m_pending.get();
    else if (waits || !m_answer || !m_answer->hasValue())
        m_answer = Answer(PrinterFailure::NotAnswering);
}

QSizeF PrintSettings::paperSize()
{
    const std::optional<Paper> paper = printer().defaultPaper;
    return paper ? paper->size : builtInDefaultPaper().size;
}

ScopedPrintSettings::ScopedPrintSettings(PrintSettings &settings)
    : m_previous(scopedSettings)
{
    scopedSettings = &settings;
}

ScopedPrintSettings::~ScopedPrintSettings()
{
    scopedSettings = m_previous;
}
