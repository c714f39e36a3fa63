// SPDX-License-Identifier: MIT
// PdfDocument reads the text of PDF files as Qt Pdf finds it on their pages, without fonts and styles.
// Thread: as Qt Pdf, which works on one document at a time.
//
// Qt Pdf bounds neither its memory nor its time: a file of 100 kilobytes can make it use all memory of any
// machine, and it aborts its process where memory is short. Only this program links it.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArrayView>

/// The text of all pages, first to last, without separators and attributes. Every line ends in CR LF, the
/// last one of a page too. A hyphen that divides a word at the end of a line is U+00AD, and the line
/// continues. Pages without text add nothing; a file of such pages is an empty text, not an error.
/// maxLength: fails as TooComplex where the text has more UTF-16 code units.
Result<AttributedString, DocumentError> readPdfDocument(QByteArrayView bytes, qsizetype maxLength);
