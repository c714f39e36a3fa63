// SPDX-License-Identifier: MIT
// OdtTest reads OpenDocument texts, and writes the elements that the tests have in common.
// Thread: any.
#pragma once

#include "documents/odt/OdtReader.h"
#include "tests/documents/odt/OdtWriter.h"
#include "tests/harness/QuillbayTest.h"

/// The styled text of a document; fails the test if it cannot be read, or if the package and the flat file
/// differ.
inline AttributedString styledTextOf(const OpenDocumentText &document)
{
    const Result<AttributedString, DocumentError> packaged = readOpenDocument(document.package());
    const Result<AttributedString, DocumentError> flat = readOpenDocument(document.flat());
    EXPECT_TRUE(packaged.hasValue()) << (packaged ? "" : qPrintable(causeText(packaged.error())));
    EXPECT_TRUE(flat.hasValue()) << (flat ? "" : qPrintable(causeText(flat.error())));
    if (!packaged || !flat)
        return {};
    EXPECT_EQ(packaged.value(), flat.value());
    return packaged.value();
}

/// The text of a document with this body.
inline QString textOfBody(const QByteArray &body, const QByteArray &automaticStyles = {})
{
    return styledTextOf({.body = body, .automaticStyles = automaticStyles}).string();
}
