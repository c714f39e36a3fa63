// SPDX-License-Identifier: MIT
// PaperTestPrinter makes the shared print settings those of a printer that the test describes.
// Thread: main.  Owner: the test.
#pragma once

#include "platform/printing/PrintSettings.h"

class PaperTestPrinter final : public PrinterSource {
public:
    Result<Printer, PrinterFailure> ask() override { return answer; }

    Result<Printer, PrinterFailure> answer = PrinterFailure::NoPrinter;
};

/// Papers of 100 x 200 points and margins of 10 points on top, 18 left, 20 at the bottom, 36 right; the first
/// is the default.
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

/// The shared print settings, with a clock of their own, for as long as this lives.
struct PaperTestSettings {
    std::shared_ptr<PaperTestPrinter> printer = std::make_shared<PaperTestPrinter>();
    std::chrono::steady_clock::time_point now{};
    PrintSettings settings{printer, [this] { return now; }};
    ScopedPrintSettings scope{settings};

    /// What the printing system says from now on; asked again at once.
    void answer(Result<Printer, PrinterFailure> newAnswer)
    {
        printer->answer = std::move(newAnswer);
        now += PrintSettings::queryInterval;
    }
};
