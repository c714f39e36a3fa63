// SPDX-License-Identifier: MIT
// PrintSettings is the user's print settings: which papers there are to choose from, which of them is the
// default, at what scale a page is printed. It asks the printing system in the background and never waits
// long for it. Thread: main.  Owner: shared() for the process, or a test.
#pragma once

#include "platform/printing/PrinterSource.h"

#include <chrono>
#include <functional>
#include <future>
#include <memory>

enum class PrinterState {
    Answering,
    NoPrinter, ///< no printing system, no printer, or one that knows no papers: the built-in catalogue is its
               ///< list
    NotAnswering, ///< the built-in catalogue stands in, but nothing may be concluded from what it lacks
};

/// What was known of the printer at one moment.
struct PrinterAnswer {
    PrinterState state = PrinterState::NotAnswering;
    std::vector<Paper> papers; ///< the printer's in its own order, else the built-in catalogue; never empty
    std::optional<Paper> defaultPaper; ///< absent only while the printer is not answering
    std::optional<double> pageScale; ///< per cent; absent only while the printer is not answering
};

class PrintSettings {
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    /// The longest that any call waits for the printing system.
    static constexpr std::chrono::milliseconds answerLimit = std::chrono::seconds(1);
    /// How long an answer is kept, since counting asks at every save of a document; and how long a printer
    /// that is not answering is left in peace, though an answer that comes late is taken as soon as it is
    /// there.
    static constexpr std::chrono::seconds askingInterval = std::chrono::minutes(1);

    /// The settings of the process, with the printers of CUPS; never destroyed, as a query may outlast
    /// main().
    static PrintSettings &shared();

    explicit PrintSettings(std::shared_ptr<PrinterSource> source,
        Clock clock = std::chrono::steady_clock::now, std::chrono::milliseconds limit = answerLimit);

    /// One answer holds together: whoever looks for a paper and then for a substitute must do both in the
    /// same one.
    [[nodiscard]] PrinterAnswer printer();

    // Of a text's page where no paper of the printer is used, in points. The margins are the customary inch.
    [[nodiscard]] QSizeF paperSize();
    [[nodiscard]] double leftMargin() const { return customaryMargin; }
    [[nodiscard]] double rightMargin() const { return customaryMargin; }

private:
    using Answer = Result<Printer, PrinterFailure>;
    static constexpr double customaryMargin = 72;

    [[nodiscard]] bool hasPendingAnswerWithin(std::chrono::milliseconds limit) const;
    void ask();

    std::shared_ptr<PrinterSource> m_source;
    Clock m_clock;
    std::chrono::milliseconds m_limit;
    std::future<Answer> m_pending; // of the last query; valid until its answer is taken
    std::optional<Answer> m_answer; // absent until first asked for
    std::chrono::steady_clock::time_point m_askedAt;
};

/// While it lives, PrintSettings::shared() is the given object. For tests; nests.
class ScopedPrintSettings {
public:
    explicit ScopedPrintSettings(PrintSettings &settings);
    ScopedPrintSettings(const ScopedPrintSettings &) = delete;
    ScopedPrintSettings &operator=(const ScopedPrintSettings &) = delete;
    ~ScopedPrintSettings();

private:
    PrintSettings *m_previous;
};
