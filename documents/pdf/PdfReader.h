// SPDX-License-Identifier: MIT
// PdfReader reads the text of PDF files as Qt Pdf finds it on their pages, without fonts and styles.
// Thread: any. Needs no application object.
//
// Qt Pdf bounds neither its memory nor its time: a file of 100 kilobytes can make it use all memory of any
// machine, and it aborts its process where memory is short. So each file is read by a program started for it,
// in a sandbox and with limits of memory and time. That program can read the bytes given to it and the
// machine's fonts, nothing else, and no other program links Qt Pdf.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QStringView>

#include <chrono>

struct PdfLimits {
    std::chrono::seconds time{60}; ///< of the processor, for a short file; ten more for each MiB
    int timeout = 20; ///< real seconds for each second of the processor: other work may share the machine
    qint64 memory = 1'073'741'824; ///< bytes, beyond what the program has when it starts
    qint64 length = 100'000'000; ///< UTF-16 code units of text
};

/// The path of the program quillbay-pdf-reader: beside the running program, otherwise where it is installed
/// relative to that. The file need not exist.
QByteArray pdfReaderProgram();

/// The text of all pages, first to last, without separators and attributes. Every line ends in CR LF, the
/// last one of a page too. A hyphen that divides a word at the end of a line is U+00AD, and the line
/// continues. Pages without text add nothing; a file of such pages is an empty text, not an error. Blocks
/// until the program exits.
Result<AttributedString, DocumentError> readPdf(
    QByteArrayView bytes, const PdfLimits &limits = {}, const QByteArray &program = pdfReaderProgram());

/// Whether the text of a PDF file is not characters: a font without a map to characters (ToUnicode), as is
/// common in Arabic files, gives the numbers of its glyphs instead. True where more than one in twenty of the
/// characters other than white space are control characters or code points without a character. In files with
/// mapped fonts, these are fewer than one in a hundred, most of them in formulas; without, one in fourteen or
/// more.
bool isUnmapped(QStringView text);
