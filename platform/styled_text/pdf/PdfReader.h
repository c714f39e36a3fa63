// SPDX-License-Identifier: MIT
// PdfReader gives the text of PDF files, as Qt Pdf finds it on their pages. What the text looks like is not
// told.
// Thread: any. Needs no application object, least of all one with a screen.
//
// Qt Pdf bounds neither its memory nor its time: a file of some 100 kilobytes can make it fill any machine,
// and it ends its process where memory is short. So every file is read in a process of its own, forked for
// it, with little memory and time; it reads nothing but the bytes given to it and the machine's fonts.
#pragma once

#include "platform/base/Result.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/styled_text/pdf/PdfError.h"

#include <QByteArrayView>

#include <chrono>

struct PdfLimits {
    std::chrono::seconds time{60}; ///< of the processor, for a short file; each MiB has ten seconds more
    qint64 memory = 1'073'741'824; ///< bytes, beyond what this process has
    qint64 length = 100'000'000; ///< UTF-16 code units of text
};

/// The text of every page, first to last, with nothing between them and without attributes; lines end as Qt
/// Pdf ends them, in CR LF. A hyphen at the end of a line that divides a word is U+00AD and the line goes on.
/// Pages without text give none; a file of such pages is an empty text, not an error. Waits for the other
/// process.
Result<AttributedString, PdfError> readPdf(QByteArrayView bytes, const PdfLimits &limits = {});
