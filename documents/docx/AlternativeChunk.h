// SPDX-License-Identifier: MIT
// Chunks in other formats that stand in a Word document (ECMA-376, w:altChunk).
// Thread: one at a time.
#pragma once

#include "documents/docx/PackageDocument.h"

/// The text of the chunk that a relationship leads to, read by what kind of part it is; it ends with a line
/// end. One outside of the package has no text. relationships: those of the part that the chunk stands in.
Result<AttributedString, DocumentError::Cause> readAlternativeChunk(
    const PackageDocument &document, const Relationships &relationships, const QByteArray &identifier);
