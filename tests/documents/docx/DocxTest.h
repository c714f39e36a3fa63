// SPDX-License-Identifier: MIT
// DocxTest reads Word documents, and writes the elements that the tests have in common.
// Thread: any.
#pragma once

#include "documents/docx/DocxReader.h"
#include "documents/reading/DocumentReader.h"
#include "tests/documents/docx/PackageWriter.h"
#include "tests/harness/QuillbayTest.h"

/// With readers of the chunks in other formats.
inline Result<AttributedString, DocumentError> readWordDocument(QByteArrayView bytes)
{
    return readDocument(DocumentKind::WordDocument, bytes);
}

/// The text of a document; fails the test if it cannot be read.
inline QString textOf(const WordPackage &document)
{
    const Result<AttributedString, DocumentError> text = readWordDocument(document.bytes());
    EXPECT_TRUE(text.hasValue()) << (text ? "" : qPrintable(causeText(text.error())));
    return text ? text.value().string() : QStringLiteral("(unreadable)");
}

/// The text of a document with this body.
inline QString textOfBody(const QByteArray &body)
{
    return textOf({.body = body});
}

inline QByteArray run(const QByteArray &text, const QByteArray &properties = {})
{
    return (properties.isEmpty() ? QByteArray("<w:r>") : "<w:r><w:rPr>" + properties + "</w:rPr>")
        + "<w:t xml:space='preserve'>" + text + "</w:t></w:r>";
}

inline QByteArray paragraph(const QByteArray &content, const QByteArray &properties = {})
{
    return (properties.isEmpty() ? QByteArray("<w:p>") : "<w:p><w:pPr>" + properties + "</w:pPr>") + content
        + "</w:p>";
}

inline QByteArray textParagraph(const QByteArray &text)
{
    return paragraph(run(text));
}

inline QByteArray cell(const QByteArray &content, const QByteArray &properties = {})
{
    return "<w:tc><w:tcPr>" + properties + "</w:tcPr>" + content + "</w:tc>";
}
