// SPDX-License-Identifier: MIT
// What the tests of the RTF reader read, and how they look at what came of it.
#pragma once

#include "documents/rtf/RtfReader.h"
#include "tests/harness/QuillbayTest.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace RtfDocuments {

/// The document's group around it.
QByteArray document(const QByteArray &body);

AttributedString read(const QByteArray &rtf, const AttachmentSource &attachments = {});

/// Of the document with this body.
QString textOf(const QByteArray &body);

/// Of the document's text at a position; one whose body is "…x…", at the first x.
TextAttributes attributesAt(const QByteArray &body, QChar character = u'x');
FontAttributes fontAt(const QByteArray &body, QChar character = u'x');
ParagraphStyle styleAt(const QByteArray &body, QChar character = u'x');

/// Documents that use everything that the reader knows, one subject each.
const std::vector<QByteArray> &samples();

/// Runs cover the text in order, neighbours differ.
void expectSound(const AttributedString &text);

} // namespace RtfDocuments
