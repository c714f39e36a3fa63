// SPDX-License-Identifier: MIT
// OneDocument is the life of the program: it greets, receives one request, reads the document and replies.
// Thread: main.
#pragma once

#include "platform/sandbox/Sandbox.h"

/// Reads small documents of several kinds, so that nothing is loaded any more when the real one comes. To be
/// called before the sandbox is entered.
void loadEverythingThatReadersNeed();

/// Returns the exit status: 0, or 1 where the connection fails or the message is not a request.
int serveOneDocument(const SandboxReport &sandbox);
