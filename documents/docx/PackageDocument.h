// SPDX-License-Identifier: MIT
// PackageDocument reads a Word document as a package: it lists the parts, reads the styles, and puts the body
// and the notes together, which StoryReader reads.
// Thread: one at a time.  Owner: DocxReader.
#pragma once

#include "documents/DocumentError.h"
#include "documents/docx/DocxReader.h"
#include "documents/docx/Numbering.h"
#include "documents/docx/PackageParts.h"
#include "documents/docx/StyleSheet.h"
#include "documents/docx/Theme.h"
#include "documents/package/ZipPackage.h"
#include "platform/styled_text/AttributedString.h"
#include "platform/system/Result.h"

/// What the parts beside the text say about its format.
struct DocumentStyles {
    Theme theme;
    Numbering numbering;
    StyleSheet styleSheet;
    double defaultTabInterval = 36; ///< points

    /// Parts that are missing or that the main part does not refer to are ignored.
    static Result<DocumentStyles, DocumentError::Cause> read(
        const ZipPackage &package, const Relationships &ofMainPart);
};

/// Refers to values of its owner.
struct PackageDocument {
    const ZipPackage &package;
    const ContentTypes &types;
    const QByteArray &mainPart;
    const Relationships &relationships; ///< of the main part
    const DocumentStyles &styles;
    const ChunkReader &readChunk;
};

/// Reads a document that may be nested in another one; readDocx() does so with a full allowance. Throws
/// std::bad_alloc.
Result<AttributedString, DocumentError::Cause> readPackageDocument(
    QByteArrayView bytes, ReadAllowance &allowance, const ChunkReader &readChunk);
