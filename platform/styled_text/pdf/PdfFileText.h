// SPDX-License-Identifier: MIT
// The text of PDF files, as Qt Pdf finds it on their pages. What the text looks like is not told.
// Thread: any; Qt Pdf works on one document at a time. Needs no application object, least of all one with a
// screen.
#pragma once

#include "platform/styled_text/AttributedString.h"

#include <QUrl>

#include <optional>

namespace QBYExtension {

/// The text of every page, first to last, with nothing between them and without attributes; lines end as Qt
/// Pdf ends them, in CR LF. Pages without text, scanned ones say, give none. Where there are no pages,
/// because the file cannot be read, is encrypted, damaged or none of PDF, or has none, this is logged and
/// absent. url: of a local file; any other counts as one that cannot be read.
std::optional<AttributedString> attributedStringFromPDFFileURL(const QUrl &url);

} // namespace QBYExtension
