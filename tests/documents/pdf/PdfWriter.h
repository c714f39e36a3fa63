// SPDX-License-Identifier: MIT
// PdfWriter makes small PDF files (PDF 1.4), a few lines of Helvetica a page.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

struct PdfWriter {
    /// RC4 of 40 bits, the standard security handler of revision 2.
    enum class Encryption { None, WithPassword, WithEmptyPassword };

    QByteArrayList pages; ///< ASCII without parentheses and backslashes; lines end in LF
    Encryption encryption = Encryption::None;
    bool isCompressed = false;
    bool arePagesDrawn =
        false; ///< pages are the operators that draw them, with the font F1, in place of text
    int claimedPages = -1; ///< a false number of pages for the file to state; -1: the true one

    [[nodiscard]] QByteArray bytes() const;
};
