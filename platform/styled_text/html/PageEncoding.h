// SPDX-License-Identifier: MIT
// PageEncoding finds out in which encoding the bytes of a web page are.
// Thread: any.
#pragma once

#include "platform/styled_text/TextEncoding.h"

/// By, in this order, the byte order mark, the charset of the transfer, the first 1024 bytes as the HTML
/// standard scans them for a meta element ("prescan a byte stream"), an XML declaration, and TextEncoding.h.
/// A charset may be a label or a whole Content-Type; an unknown one does not count.
TextEncoding encodingOfPage(QByteArrayView page, QByteArrayView charset);
