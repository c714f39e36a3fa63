// SPDX-License-Identifier: MIT
// ReadingTime is how much time of the processor a document may take to be read, whichever process reads it.
// That process is limited from outside.
// Thread: any.
#pragma once

#include "documents/DocumentKind.h"

#include <chrono>

/// In proportion to the length of the document, in bytes; several times what real documents need.
std::chrono::seconds maxReadingTime(DocumentKind kind, qsizetype length);
