// SPDX-License-Identifier: MIT
// RtfDocuments provides the documents of the RTF reader's tests, and reads them.
// Thread: any.
#pragma once

#include "documents/rtf/RtfReader.h"
#include "tests/harness/QuillbayTest.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace RtfDocuments {

/// A document with this body.
QByteArray document(const QByteArray &body);

AttributedString read(const QByteArray &rtf, const AttachmentSource &attachments = {});

/// The text of the document with this body.
QString textOf(const QByteArray &body);

// The format of a character at its first position in the document with this body.
TextAttributes attributesAt(const QByteArray &body, QChar character = u'x');
FontAttributes fontAt(const QByteArray &body, QChar character = u'x');
ParagraphStyle styleAt(const QByteArray &body, QChar character = u'x');

/// Documents that use all features of the reader, one subject each.
const std::vector<QByteArray> &samples();

/// Expects that the runs cover the text in order, and that neighbours differ.
void expectSound(const AttributedString &text);

} // namespace RtfDocuments
