// SPDX-License-Identifier: MIT
// PaperTestPrinter is a printer that the test describes; PaperTestSettings make it that of the shared
// settings.
// Thread: main.  Owner: the test.
#pragma once

#include "platform/printing/PrintSettings.h"

class PaperTestPrinter final : public PrinterSource {
public:
    Result<Printer, PrinterFailure> ask() override { return answer; }

    Result<Printer, PrinterFailure> answer = PrinterFailure::NoPrinter;
};

/// Papers of 100 x 200 points with margins of 10 points at the top, 18 left, 20 at the bottom and 36 right.
/// The first paper is the default.
inline Printer printerWith(std::initializer_list<const char *> names, double pageScale = 100)
{
    Printer printer;
    for (const char *name : names) {
        const QString text = QString::fromLatin1(name);
        printer.papers.push_back({text, text + QStringLiteral("-id"), false, QSizeF(100, 200),
            PaperMargins{.top = 10, .left = 18, .bottom = 20, .right = 36}});
    }
    printer.defaultPaper = printer.papers.front();
    printer.pageScale = pageScale;
    return printer;
}

/// Replaces the shared print settings, with a clock of their own, until it is destroyed.
struct PaperTestSettings {
    std::shared_ptr<PaperTestPrinter> printer = std::make_shared<PaperTestPrinter>();
    std::chrono::steady_clock::time_point now{};
    PrintSettings settings{printer, [this] { return now; }};
    ScopedPrintSettings scope{settings};

    /// Sets the answer of the printing system, and lets the settings ask again at once.
    void setAnswer(Result<Printer, PrinterFailure> newAnswer)
    {
        printer->answer = std::move(newAnswer);
        now += PrintSettings::queryInterval;
    }
};
