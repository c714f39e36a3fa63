// SPDX-License-Identifier: MIT
// PdfWriter makes small PDF files (PDF 1.4), a few lines of Helvetica a page.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

struct PdfWriter {
    QByteArrayList pages; ///< ASCII without parentheses and backslashes; lines end in LF
    bool isEncrypted = false; ///< with a password that nobody knows

    [[nodiscard]] QByteArray bytes() const;
};
