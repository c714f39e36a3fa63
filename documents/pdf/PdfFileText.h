// SPDX-License-Identifier: MIT
// The text of PDF files on disk.
// Thread: any.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <QUrl>

#include <optional>

namespace QBYExtension {

/// The text of every page as readPdf() gives it. Where there are no pages, because the file cannot be read,
/// is encrypted, damaged or none of PDF, or has none, this is logged and absent. url: of a local file; any
/// other counts as one that cannot be read.
std::optional<AttributedString> attributedStringFromPDFFileURL(const QUrl &url);

} // namespace QBYExtension
