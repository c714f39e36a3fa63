// SPDX-License-Identifier: MIT
// DocumentError is why a document could not be read or written. Which document it was, its receiver knows.
// Thread: any; a value.
#pragma once

#include "documents/DocumentKind.h"
#include "platform/files/FileContents.h"

#include <QString>

#include <optional>

struct DocumentError {
    /// The numbers travel between processes.
    enum class Cause : quint32 {
        FileUnreadable = 1, ///< `file` has the reason
        WrongKind, ///< the document is not of the kind that it was read as
        NotText, ///< a picture, a program … of a kind that has no reader; `format` says which
        UnsupportedFormat, ///< a document in a format without a reader; `format` says which, with the remedy
        OldFormat, ///< of Word 97 to 2003
        Encrypted,
        Damaged, ///< broken, or a part that is needed is missing
        TextMissing, ///< an RTFD has no file TXT.rtf
        TextUnreadable, ///< TXT.rtf of an RTFD package cannot be read; `file` has the reason
        TextNotRtf, ///< TXT.rtf of an RTFD is not RTF
        FlatWordDocument, ///< a Word document in one XML file
        UnsupportedPart, ///< a part of a Word document is in a format without a reader
        NoPages,
        NoText, ///< a PDF file has no text on any page, as scans have not
        UnmappedText, ///< the fonts of a PDF file do not say which characters their glyphs are
        TooLong, ///< 2 GiB or more: positions in a text are 32 bits wide
        TooLarge, ///< a document that is a package has too many parts, or too many bytes in them
        TooDeep, ///< a web page has more than 1000 elements inside each other
        TooComplex, ///< reading it takes time or memory out of proportion to its length
        PdfNotSupported, ///< the options leave PDF files out
        NoReader, ///< the program that reads documents is missing or does not start
        NoSandbox, ///< the system does not confine the process that would read it
        NotEnoughMemory,
        Cancelled, ///< by whoever asked for the text
    };
    static constexpr Cause lastCause = Cause::Cancelled;

    DocumentError(Cause whatIsWrong, DocumentKind ofDocument)
        : cause(whatIsWrong)
        , kind(ofDocument)
    {
    }
    /// A document whose file could not be read. What a file shares with other documents (TooLong,
    /// NotEnoughMemory) has the same cause here.
    explicit DocumentError(const FileError &error);

    Cause cause;
    DocumentKind kind = DocumentKind::PlainText; ///< PlainText where it is not known yet
    std::optional<FileError> file = std::nullopt; ///< of FileUnreadable and TextUnreadable
    /// For use after "is", as "a PNG image": of NotText in the language of the messages, of UnsupportedFormat
    /// in English.
    QString format = {};

    bool operator==(const DocumentError &) const = default;
};

/// What is wrong and, where there is a remedy, what to do, in the user's language on one line. Callers print
/// it after the name of the document and a colon: "is encrypted; save it without a password".
QString causeText(const DocumentError &error);
