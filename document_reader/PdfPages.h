// SPDX-License-Identifier: MIT
// PdfPages reads the pages of a PDF file with Qt Pdf, which may take any time and memory and may abort the
// process. Only PdfDocument uses it.
// Thread: any; Qt Pdf works on one document at a time.
#pragma once

#include "documents/DocumentError.h"

#include <QByteArrayView>
#include <QString>

#include <functional>
#include <optional>

/// Passes the text of each page, first to last, to take() until that returns false. Returns why the file
/// cannot be opened; absent where it could be.
using TakePage = std::function<bool(const QString &text)>;
std::optional<DocumentError::Cause> forEachPdfPage(QByteArrayView bytes, const TakePage &take);
