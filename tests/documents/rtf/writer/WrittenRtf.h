// SPDX-License-Identifier: MIT
// WrittenRtf is what RtfWriter makes of small texts, for the tests of its words.
// Thread: any.
#pragma once

#include "documents/rtf/writer/RtfWriter.h"

namespace WrittenRtf {

/// What every document begins with.
extern const QByteArray start;
/// The font table of serif().
extern const QByteArray serifTable;

QByteArray rtfOf(const AttributedString &text, const AttachmentNames &names = {});

FontAttributes serif(double size = 12);
TextAttributes withFont(const FontAttributes &font);

/// What stands behind the start and before a letter of these attributes; fails the test where the rest is
/// different.
QByteArray wordsOf(const TextAttributes &attributes);
QByteArray wordsOf(const FontAttributes &font);
QByteArray wordsOf(const ParagraphStyle &style);

} // namespace WrittenRtf
