// SPDX-License-Identifier: MIT
// DeclaredEncoding finds out in which encoding the bytes of a document are that may say so itself, or whose
// transfer may have said so. Thread: any.
#pragma once

#include "platform/text_encoding/TextEncoding.h"

// A name that EncodingLabels.h does not list does not count, nor does UTF-8 for bytes that cannot be it.

/// By, in this order, the byte order mark, the charset of the transfer, the first 1024 bytes as the HTML
/// standard scans them for a meta element ("prescan a byte stream"), an XML declaration, and TextEncoding.h.
/// A charset may be a label or a whole Content-Type.
TextEncoding encodingOfPage(QByteArrayView page, QByteArrayView charset);

/// By, in this order, the byte order mark, the charset of the transfer, and TextEncoding.h, which believes
/// the XML declaration or meta element of a text that begins with markup over its own guess at older
/// encodings.
TextEncoding encodingOfPlainText(QByteArrayView bytes, QByteArrayView charset);
