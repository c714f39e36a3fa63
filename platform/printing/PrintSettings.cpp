// SPDX-License-Identifier: MIT
#include "platform/printing/PrintSettings.h"

#include "platform/printing/BuiltInPapers.h"
#include "platform/printing/CupsPrinterSource.h"

#include <algorithm>
#include <csignal>
#include <system_error>
#include <thread>

namespace {

PrintSettings *scopedSettings = nullptr;

// Signals belong to the main thread, and a server that hangs up must not end the process by SIGPIPE.
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

// The surroundings choose where neither user nor printer does, but only a paper that the printer takes:
// whoever looks the default up by its name must find it.
Paper surroundingsPaper(const std::vector<Paper> &papers)
{
    const QSizeF size = builtInDefaultPaper().size;
    const auto found = std::find_if(
        papers.begin(), papers.end(), [&](const Paper &paper) { return isSamePaperSize(paper.size, size); });
    return found == papers.end() ? papers.front() : *found;
}

PrinterAnswer answerFrom(const Result<Printer, PrinterFailure> &result)
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
        .defaultPaper = printer.defaultPaper ? *printer.defaultPaper : surroundingsPaper(printer.papers),
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
    std::shared_ptr<PrinterSource> source, Clock clock, std::chrono::milliseconds limit)
    : m_source(std::move(source))
    , m_clock(std::move(clock))
    , m_limit(limit)
{
}

PrinterAnswer PrintSettings::printer()
{
    if (hasPendingAnswerWithin(std::chrono::milliseconds(0)))
        m_answer = m_pending.get();
    if (!m_answer || m_clock() - m_askedAt >= askingInterval)
        ask();
    return answerFrom(*m_answer);
}

bool PrintSettings::hasPendingAnswerWithin(std::chrono::milliseconds limit) const
{
    return m_pending.valid() && m_pending.wait_for(limit) == std::future_status::ready;
}

void PrintSettings::ask()
{
    m_askedAt = m_clock();
    std::promise<Answer> promise;
    m_pending = promise.get_future();
    // The thread owns all that it touches, so that its answer may come when nobody waits for it any more.
    const auto query = [source = m_source](std::promise<Answer> answer) {
        blockSignals();
        answer.set_value(source->ask());
    };
    try {
        std::thread(query, std::move(promise)).detach();
    } catch (const std::system_error &) {
        m_pending = {}; // no thread to be had: nobody is asked, and nobody answers
    }
    m_answer = hasPendingAnswerWithin(m_limit) ? m_pending.get() : Answer(PrinterFailure::NotAnswering);
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
