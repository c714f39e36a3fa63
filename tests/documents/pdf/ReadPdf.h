// SPDX-License-Identifier: MIT
// ReadPdf reads PDF files as the product does, in its program.
// Thread: any.
#pragma once

#include "documents/loading/SandboxedReader.h"

inline Result<AttributedString, DocumentError> readPdf(
    QByteArrayView bytes, const std::optional<ReaderLimits> &limits = std::nullopt)
{
    return SandboxedReader::shared().read(DocumentKind::Pdf, bytes, {}, limits);
}
