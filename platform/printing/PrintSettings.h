// SPDX-License-Identifier: MIT
// PrintSettings has the user's print settings: the papers, the default paper and the scale of a page. It
// queries the printing system in the background and waits at most a second for it.
// Thread: main.  Owner: the process for shared(), or a test.
#pragma once

#include "platform/printing/PrinterSource.h"

#include <chrono>
#include <functional>
#include <future>
#include <memory>

enum class PrinterState {
    Answering,
    NoPrinter, ///< no printing system, no printer, or one without papers: the built-in catalogue is the list
    NotAnswering, ///< the built-in catalogue is only a substitute: the printer may have other papers
};

/// The state of the printer at one moment.
struct PrinterAnswer {
    PrinterState state = PrinterState::NotAnswering;
    std::vector<Paper> papers; ///< the printer's in its order, otherwise the built-in catalogue; never empty
    std::optional<Paper> defaultPaper; ///< absent only while the printer is not answering
    std::optional<double> pageScale; ///< per cent; absent only while the printer is not answering

    bool operator==(const PrinterAnswer &) const = default;
};

class PrintSettings {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// The maximum wait of a call for the printing system.
    static constexpr std::chrono::milliseconds defaultTimeout = std::chrono::seconds(1);
    /// The minimum time between two queries, since every count needs an answer. A late answer is used as soon
    /// as it arrives.
    static constexpr std::chrono::seconds queryInterval = std::chrono::minutes(1);

    /// The settings of the process, with the printers of CUPS. Never destroyed: a query may outlast main().
    static PrintSettings &shared();

    explicit PrintSettings(std::shared_ptr<PrinterSource> source,
        Clock clock = std::chrono::steady_clock::now, std::chrono::milliseconds timeout = defaultTimeout);

    /// The next call may return another answer: look for a paper and for its substitute in the same one.
    [[nodiscard]] PrinterAnswer printer();

    /// The maximum wait of later calls for the printing system; 0 for a program whose windows must not wait.
    /// Until an answer arrives, printer() then returns the printer of the former one, or none that answers.
    void setTimeout(std::chrono::milliseconds timeout) { m_timeout = timeout; }
    /// Whether a query is running whose answer the next printer() may return.
    [[nodiscard]] bool isAsking() const { return m_pending.valid(); }

    // The page of a text if no paper of the printer is used, in points. The margins are the usual inch.
    [[nodiscard]] QSizeF paperSize();
    [[nodiscard]] double leftMargin() const { return defaultMargin; }
    [[nodiscard]] double rightMargin() const { return defaultMargin; }

private:
    using Answer = Result<Printer, PrinterFailure>;
    static constexpr double defaultMargin = 72;

    [[nodiscard]] bool waitForAnswer(std::chrono::milliseconds timeout) const;
    void ask();

    std::shared_ptr<PrinterSource> m_source;
    Clock m_clock;
    std::chrono::milliseconds m_timeout;
    std::future<Answer> m_pending; // the running query; not valid otherwise
    std::optional<Answer> m_answer; // absent before the first query
    std::chrono::steady_clock::time_point m_lastQuery;
};

/// Makes the given object PrintSettings::shared() as long as it exists. For tests; can be nested.
class ScopedPrintSettings {
public:
    explicit ScopedPrintSettings(PrintSettings &settings);
    ScopedPrintSettings(const ScopedPrintSettings &) = delete;
    ScopedPrintSettings &operator=(const ScopedPrintSettings &) = delete;
    ~ScopedPrintSettings();

private:
    PrintSettings *m_previous;
};
