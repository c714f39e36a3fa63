// SPDX-License-Identifier: MIT
// KindDetection finds out of which kind a document is, and refuses what is no text; it opens and reads no
// document.
// Thread: any.
#pragma once

#include "documents/DocumentError.h"
#include "documents/DocumentKind.h"
#include "platform/system/Result.h"

#include <QByteArray>
#include <QByteArrayView>

/// The bytes decide first, whatever the name:
///  - the start of an RTF, a flat RTFD or a PDF with at least one object (so that a text about PDF stays a
///    text);
///  - a package by its entries, a compound file by its streams, an XML file of an office program by the type
///    that it declares: Word documents of all times are of their kind, whose reader has the remedy for the
///    old and the encrypted ones. Other programs' documents fail as UnsupportedFormat;
///  - everything else that is no text in any encoding fails as NotText, with the description that the
///    desktop's shared MIME database has of its magic number.
/// Of a text, the MIME type of the name decides. Where the database does not know the name, a doctype or html
/// tag at the start makes a web page. All other texts are plain text, and so is an empty document.
/// A kind by name is not verified: a text named as a Word document is one, which its reader refuses.
/// Takes time proportional to the length.
/// name: a path or a file name in any encoding, which ends at its first NUL byte; empty for a document
/// without a name.
Result<DocumentKind, DocumentError> kindOfDocument(const QByteArray &name, QByteArrayView bytes);
