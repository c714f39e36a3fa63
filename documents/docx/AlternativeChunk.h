// SPDX-License-Identifier: MIT
// AlternativeChunk reads the chunks in other formats within a Word document (ECMA-376, w:altChunk). Placing
// their text is left to StoryReader.
// Thread: one at a time.
#pragma once

#include "documents/docx/PackageDocument.h"

/// The text of the chunk at the target of a relationship; it ends with a line end. Empty if the target is
/// outside of the package. The format is detected from the contents and the content type. relationships:
/// those of the part that contains the chunk.
Result<AttributedString, DocumentError::Cause> readAlternativeChunk(
    const PackageDocument &document, const Relationships &relationships, const QByteArray &identifier);
