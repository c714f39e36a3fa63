// SPDX-License-Identifier: MIT
// PrinterSource is the interface to the printing system for PrintSettings; CupsPrinterSource implements it
// for CUPS.
// Thread: ask() runs on a thread of its own, one at a time.  Owner: PrintSettings, shared with a running
// ask().
#pragma once

#include "platform/printing/Paper.h"
#include "platform/system/Result.h"

#include <vector>

/// What the printing system reports about one printer.
struct Printer {
    std::vector<Paper> papers; ///< in the printer's order; empty if it reports none
    std::optional<Paper> defaultPaper; ///< one of the papers; absent if neither user nor printer names one
    double pageScale = 100; ///< per cent, above 0
};

enum class PrinterFailure {
    NoPrinter, ///< no printing system runs here, or it has no printer
    NotAnswering, ///< there may be a printer, but its papers are unknown now
};

class PrinterSource {
public:
    PrinterSource() = default;
    PrinterSource(const PrinterSource &) = delete;
    PrinterSource &operator=(const PrinterSource &) = delete;
    virtual ~PrinterSource() = default;

    /// Queries the user's default printer. May block for up to a minute.
    [[nodiscard]] virtual Result<Printer, PrinterFailure> ask() = 0;
};

/// Queries the CUPS server of the environment and client.conf about the user's default destination: the one
/// of LPDEST, PRINTER, lpoptions or the server, in this order, otherwise the server's first queue. Ignores
/// network printers without a queue on the server.
class CupsPrinterSource final : public PrinterSource {
public:
    /// Needs a thread that blocks SIGPIPE, and no other thread that changes the environment meanwhile. Takes
    /// some milliseconds, or 20 seconds if the server falls silent. CupsAnswers.h describes how the answers
    /// are used.
    [[nodiscard]] Result<Printer, PrinterFailure> ask() override;
};
