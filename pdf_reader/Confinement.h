// SPDX-License-Identifier: MIT
// Confinement is all that holds the program that reads PDF files: the limits of its order, and the sandbox.
// Thread: main, before there is another.
#pragma once

#include "documents/pdf/PdfReaderOrder.h"
#include "platform/sandbox/Sandbox.h"

/// Puts them in force, for good. The system ends the process when a limit of time is reached.
SandboxReport confine(const PdfReaderOrder &order);
