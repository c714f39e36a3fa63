// SPDX-License-Identifier: MIT
// HtmlSignature recognizes web pages by their first bytes, and links no reader.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// Whether the bytes begin with an HTML doctype or an html tag, after an optional byte order mark, white
/// space, comments and an XML declaration. Supports UTF-16 and supersets of ASCII. Reads at most 64 KiB.
bool looksLikeHtml(QByteArrayView bytes);
