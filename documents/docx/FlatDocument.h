// SPDX-License-Identifier: MIT
// FlatDocument recognizes Word documents in one XML file: flat packages, and the XML of Word 2003. They are
// not read; DocxReader refuses them by name.
// Thread: any.
#pragma once

#include <QByteArrayView>

/// Whether the bytes are an XML document that names Word as its program, or that has the root element of such
/// a document. Supports supersets of ASCII. Reads at most 16 KiB.
bool looksLikeFlatWordDocument(QByteArrayView bytes);
