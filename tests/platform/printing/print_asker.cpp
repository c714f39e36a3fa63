// SPDX-License-Identifier: MIT
// Queries the shared print settings once, prints the answer and exits, even if a query still runs in the
// background.
#include "platform/printing/PrintSettings.h"

#include <csignal>
#include <iostream>

int main()
{
    switch (PrintSettings::shared().printer().state) {
    case PrinterState::Answering:
        std::cout << "answering\n";
        break;
    case PrinterState::NoPrinter:
        std::cout << "no printer\n";
        break;
    case PrinterState::NotAnswering:
        std::cout << "not answering\n";
        break;
    }
    struct sigaction pipe { };
    ::sigaction(SIGPIPE, nullptr, &pipe);
    std::cout << (pipe.sa_handler == SIG_DFL ? "SIGPIPE as before\n" : "SIGPIPE changed\n");
    return 0;
}
