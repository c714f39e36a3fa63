// SPDX-License-Identifier: MIT
// PdfPages goes through the pages of a PDF file with Qt Pdf, which may take any time and memory, or end the
// process; for others than its own program, it is PdfReader that reads PDF files.
// Thread: any; Qt Pdf works on one document at a time.  Owner: main.
#pragma once

#include "documents/DocumentError.h"

#include <QByteArrayView>
#include <QString>

#include <functional>
#include <optional>

/// Hands over the text of each page in order until take() returns false. What went wrong is returned, before
/// there was any page.
using TakePage = std::function<bool(const QString &text)>;
std::optional<DocumentError::Cause> forEachPdfPage(QByteArrayView bytes, const TakePage &take);
