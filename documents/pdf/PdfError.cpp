// SPDX-License-Identifier: MIT
#include "documents/pdf/PdfError.h"

QString causeText(PdfError error)
{
    switch (error) {
    case PdfError::NotPdf:
        return QStringLiteral("is not a PDF file");
    case PdfError::Encrypted:
        return QStringLiteral("is encrypted; save it without a password");
    case PdfError::Damaged:
        return QStringLiteral("is a damaged PDF file; make it anew with the program that wrote it");
    case PdfError::NoPages:
        return QStringLiteral("is a PDF file without pages; print the document again");
    case PdfError::UnmappedText:
        return QStringLiteral("has unreadable text, in fonts without a map to characters; run it through "
                              "text recognition first");
    case PdfError::NoText:
        return QStringLiteral("has no text on its pages; run scans through text recognition first");
    case PdfError::TooIntricate:
        return QStringLiteral("takes more time or memory than any PDF file; print it to a new one first");
    case PdfError::NotReadHere:
        return QStringLiteral("is a PDF file, which is not read here; count it with 'quillbay count'");
    case PdfError::NoReader:
        return QStringLiteral("needs the program quillbay-pdf-reader, which is missing or does not start; "
                              "install Quillbay anew");
    case PdfError::NotEnoughMemory:
        break;
    }
    return QStringLiteral("not enough memory");
}
