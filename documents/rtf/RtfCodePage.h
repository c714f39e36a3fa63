// SPDX-License-Identifier: MIT
// RtfCodePage names what the bytes above 127 of a document mean, by the numbers of code pages and of the
// character sets of fonts that RTF 1.9.1 lists. Turning bytes into text is left to RtfDecoder.
// Thread: any.
#pragma once

#include <QtGlobal>

struct RtfCodePage {
    enum class Kind {
        Encoding, ///< ASCII and more
        SymbolFont, ///< the Greek letters and signs of the font Symbol
        PictureFont, ///< the glyphs of any other symbol font, from U+F021 on
    };

    qint32 number;
    Kind kind;
    const char *encoding; ///< as ICU knows it; null for fonts
};

/// Null where it is none that is known. Pages live as long as the process.
const RtfCodePage *rtfCodePage(qint32 number);

/// The page of \fcharset, null where it is the document's own. Of a symbol font, Kind::PictureFont.
const RtfCodePage *rtfCodePageOfCharset(qint32 charset);

/// Windows-1252: of a document that names none.
const RtfCodePage *defaultRtfCodePage();

const RtfCodePage *rtfCodePageOfSymbolFont();

/// There are so many pages; each has a place among them.
qsizetype rtfCodePageCount();
qsizetype rtfCodePageIndex(const RtfCodePage *page);
