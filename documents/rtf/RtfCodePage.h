// SPDX-License-Identifier: MIT
// RtfCodePage maps the numbers of code pages and of font character sets in RTF 1.9.1 to encodings. Turning
// bytes into text is left to RtfDecoder.
// Thread: any.
#pragma once

#include <QtGlobal>

struct RtfCodePage {
    enum class Kind {
        Encoding, ///< a superset of ASCII
        SymbolFont, ///< the font Symbol: Greek letters and signs
        PictureFont, ///< any other symbol font: private characters from U+F021 on
    };

    qint32 number;
    Kind kind;
    const char *encoding; ///< a name ICU knows; null for fonts
};

/// Null for an unknown number. Pages live as long as the process.
const RtfCodePage *rtfCodePage(qint32 number);

/// The page of \fcharset; null if it is that of the document. For any symbol font, Kind::PictureFont.
const RtfCodePage *rtfCodePageOfCharset(qint32 charset);

/// Windows-1252, for a document that names no page.
const RtfCodePage *defaultRtfCodePage();

const RtfCodePage *rtfCodePageOfSymbolFont();

/// The number of pages, and the index of one of them: 0 to rtfCodePageCount() - 1.
qsizetype rtfCodePageCount();
qsizetype rtfCodePageIndex(const RtfCodePage *page);
