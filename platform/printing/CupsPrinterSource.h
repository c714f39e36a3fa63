// SPDX-License-Identifier: MIT
// CupsPrinterSource asks the CUPS server that the environment and client.conf name about the user's default
// destination: the one of LPDEST, PRINTER, lpoptions or the server, in this order, else the server's first
// queue. Printers in the network that no queue of the server stands for are not looked for. Thread: ask() on
// any that blocks SIGPIPE, as long as no other thread changes the environment meanwhile.
#pragma once

#include "platform/printing/PrinterSource.h"

class CupsPrinterSource final : public PrinterSource {
public:
    /// Takes some milliseconds with a server that is well. One that falls silent is left after 20 seconds.
    /// What the answers mean is told in CupsAnswers.h.
    [[nodiscard]] Result<Printer, PrinterFailure> ask() override;
};
