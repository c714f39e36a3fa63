// SPDX-License-Identifier: MIT
// EpubReader turns the bytes of an electronic book (EPUB 2 and 3) into styled text. Nothing outside of the
// book is fetched, and no script is run.
// Thread: any.
//
// The text is that of the pages in the reading order of the book (the spine), each as HtmlReader reads it.
//  - Every page that has text begins a paragraph.
//  - Pages beside the reading order (linear="no") are left out, as are the table of contents and the cover
//    unless they are in the reading order: several programs write the table of contents beside it.
//  - Of a page in another format, its fallback is read; without one, it has no text.
//  - A page that is listed twice is read once.
//  - Style sheets within a page hide text as in web pages. Sheets of their own are not read.
//  - Fonts that are obfuscated do not matter. A book of which a page is encrypted fails as Encrypted.
#pragma once

#include "documents/DocumentError.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

#include <QByteArrayView>

/// Fails as Damaged if a page of the reading order is missing, and as TooLarge for more than 64 MiB of
/// pages. Takes time proportional to the uncompressed pages, and memory proportional to the longest page and
/// the text.
Result<AttributedString, DocumentError> readEpub(QByteArrayView bytes);
