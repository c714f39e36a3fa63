// SPDX-License-Identifier: MIT
// TextBytes judges by the bytes alone whether a document is text, in any encoding. Which encoding it is,
// platform/text_encoding finds out.
// Thread: any.
#pragma once

#include <QByteArrayView>

enum class TextEvidence {
    Clear, ///< text, whatever a database of file types says
    Likely, ///< text, unless its first bytes are those of a known binary format
    None,
};

/// Takes time proportional to the length. Relies on these facts:
///  - Text has no control characters other than tabs, line ends, form feeds, backspaces (overstrikes), the
///    shifts and escapes of ISO-2022 and terminals, and the end mark of DOS.
///  - A few others occur: the separators of databases, colours of chats, a stray NUL. In UTF-8 without NUL
///    they may be many, because no other data of that length is valid UTF-8 by chance.
///  - Compressed and encrypted data has 8 % of them, programs and tables of numbers have many NULs.
///  - UTF-16 and UTF-32 are full of them, but not once they are decoded.
TextEvidence textEvidence(QByteArrayView bytes);
