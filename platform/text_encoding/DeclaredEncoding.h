// SPDX-License-Identifier: MIT
// DeclaredEncoding detects the encoding of a document that may declare it, or that was transferred with a
// charset; TextEncoding decides if neither helps.
// Thread: any.
#pragma once

#include "platform/text_encoding/TextEncoding.h"

// Both functions ignore names that EncodingLabels.h does not list, and UTF-8 if the bytes are not UTF-8.

/// Asks, in this order, the byte order mark, the charset of the transfer, a meta element in the first 1024
/// bytes (HTML standard, "prescan a byte stream"), the XML declaration, and TextEncoding.h.
/// charset: a label or a whole Content-Type; may be empty.
TextEncoding encodingOfPage(QByteArrayView page, QByteArrayView charset);

/// Asks, in this order, the byte order mark, the charset of the transfer, and TextEncoding.h. If the text
/// begins with markup, its XML declaration or meta element takes precedence over a guess at older encodings.
/// charset: a label; may be empty.
TextEncoding encodingOfPlainText(QByteArrayView bytes, QByteArrayView charset);
