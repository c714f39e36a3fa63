// SPDX-License-Identifier: MIT
// KindOf finds out the kinds of documents in tests.
// Thread: any.
#pragma once

#include "documents/reading/KindDetection.h"

/// Whether the bytes alone, without a name, say that the document is of the kind.
inline bool isOfKind(DocumentKind kind, QByteArrayView bytes)
{
    const Result<DocumentKind, DocumentError> found = kindOfDocument({}, bytes);
    return found && found.value() == kind;
}
