// SPDX-License-Identifier: MIT
// DocumentSandbox is the policy of the processes that touch documents: they read fonts, and hand on what they
// make of a document by the descriptors that they were started with.
// Thread: main, before there is another.
#pragma once

#include "platform/sandbox/Sandbox.h"

/// Puts the policy in force, for good. fonts: the folders and files that fonts are read from. Limits of
/// memory and processor time are the caller's, and cannot be set from inside any more.
SandboxReport enterDocumentSandbox(const QByteArrayList &fonts);
