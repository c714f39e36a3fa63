// SPDX-License-Identifier: MIT
// WrittenRtf returns what RtfWriter writes for small texts.
// Thread: any.
#pragma once

#include "documents/rtf/writer/RtfWriter.h"

namespace WrittenRtf {

/// The beginning of every document.
extern const QByteArray start;
/// The font table of serif().
extern const QByteArray serifTable;

QByteArray rtfOf(const AttributedString &text, const AttachmentNames &names = {});

FontAttributes serif(double size = 12);
TextAttributes withFont(const FontAttributes &font);

/// The words that are written for a letter with these attributes, without the start of the document; fails
/// the test if the rest is not as expected.
QByteArray wordsOf(const TextAttributes &attributes);
QByteArray wordsOf(const FontAttributes &font);
QByteArray wordsOf(const ParagraphStyle &style);

} // namespace WrittenRtf
