// SPDX-License-Identifier: MIT
// PdfReader gives the text of PDF files, as Qt Pdf finds it on their pages. What the text looks like is not
// told.
// Thread: any. Needs no application object, least of all one with a screen.
//
// Qt Pdf bounds neither its memory nor its time: a file of some 100 kilobytes can make it fill any machine,
// and it ends its process where memory is short. So every file is read by a program of its own, started for
// it, with little memory and time, in a sandbox: it reads nothing but the bytes given to it and the machine's
// fonts, and nobody else has Qt Pdf in it.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

#include <chrono>

struct PdfLimits {
    std::chrono::seconds time{60}; ///< of the processor, for a short file; each MiB has ten seconds more
    int timeout = 20; ///< real seconds for each of those, on a machine with other work: a last resort
    qint64 memory = 1'073'741'824; ///< bytes, beyond what the program has when it starts
    qint64 length = 100'000'000; ///< UTF-16 code units of text
};

/// The path of the program quillbay-pdf-reader: beside the program that runs, or else where it is installed
/// as seen from there, whether it is there or not.
QByteArray pdfReaderProgram();

/// The text of every page, first to last, with nothing between them and without attributes. Every line ends
/// in CR LF, the last one of a page too. A hyphen at the end of a line that divides a word is U+00AD and the
/// line goes on. Pages without text give none; a file of such pages is an empty text, not an error. Waits for
/// the program.
Result<AttributedString, DocumentError> readPdf(
    QByteArrayView bytes, const PdfLimits &limits = {}, const QByteArray &program = pdfReaderProgram());
