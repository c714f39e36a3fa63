// SPDX-License-Identifier: MIT
// PdfError is why a PDF file has no text for us.
// Thread: any; a value.
#pragma once

#include <QString>

enum class PdfError {
    NotPdf,
    Encrypted, ///< with a password to open it
    Damaged,
    NoPages,
    NoText, ///< on any page, as in scans
    UnmappedText, ///< in fonts that do not say which characters their glyphs are
    TooIntricate, ///< to be read in the time, the memory or the length of text that a PDF file gets
    NotReadHere, ///< by a loader that leaves PDF files to others
    NoReader, ///< the program that reads PDF files is not there, or does not start
    NotEnoughMemory,
};

/// The cause and a remedy in English, on one line, to stand behind a file's name: "is encrypted; …".
QString causeText(PdfError error);
