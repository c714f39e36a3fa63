// SPDX-License-Identifier: MIT
// XhtmlSource rewrites a page in XHTML so that a parser of HTML builds the same tree: parsers of HTML take
// empty-element tags such as <title/> or <div/> for start tags, and CDATA sections for comments.
// Thread: any.
#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The page without processing instructions, with an end tag for every empty-element tag, and with the
/// characters of CDATA sections. Accepts any bytes; takes time proportional to their number. The result has
/// at most three times as many bytes, except for CDATA sections. page: UTF-8.
QByteArray htmlOfXhtml(QByteArrayView page);
