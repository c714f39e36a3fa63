// SPDX-License-Identifier: MIT
// PdfFileText reads the text of a PDF file on disk, for callers that need no cause of a failure.
// Thread: any.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <QUrl>

#include <optional>

namespace QBYExtension {

/// The text of all pages, as SandboxedReader returns it. Absent, and logged, where there are no pages: the
/// file cannot be read, is encrypted, damaged, not a PDF file or empty. url: of a local file; any other
/// counts as one that cannot be read.
std::optional<AttributedString> attributedStringFromPDFFileURL(const QUrl &url);

} // namespace QBYExtension
