// SPDX-License-Identifier: MIT
// PrinterSource is the printing system as the print settings see it: somebody who can be asked about the
// default printer, now or in a while or never. Thread: ask() runs on a thread of its own, one at a time.
#pragma once

#include "platform/printing/Paper.h"
#include "platform/system/Result.h"

#include <vector>

/// What the printing system says of one printer.
struct Printer {
    std::vector<Paper> papers; ///< in the printer's own order; empty where it knows none
    std::optional<Paper> defaultPaper; ///< one of the papers; absent if neither user nor printer names one
    double pageScale = 100; ///< per cent, above 0
};

enum class PrinterFailure {
    NoPrinter, ///< no printing system runs here, or it has no printer
    NotAnswering, ///< there may be a printer, but what it takes cannot be learned now
};

class PrinterSource {
public:
    PrinterSource() = default;
    PrinterSource(const PrinterSource &) = delete;
    PrinterSource &operator=(const PrinterSource &) = delete;
    virtual ~PrinterSource() = default;

    /// Asks about the user's default printer. May block for long, but should come to an end within a minute.
    [[nodiscard]] virtual Result<Printer, PrinterFailure> ask() = 0;
};
