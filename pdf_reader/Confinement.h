// SPDX-License-Identifier: MIT
// Confinement puts the limits of a request and the sandbox in force for the program that reads PDF files.
// Thread: main, before any other thread.
#pragma once

#include "documents/pdf/PdfReaderRequest.h"
#include "platform/sandbox/Sandbox.h"

/// Irrevocable. The system kills the process when it reaches a limit of time.
SandboxReport confine(const PdfReaderRequest &request);
