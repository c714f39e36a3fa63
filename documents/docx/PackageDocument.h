// SPDX-License-Identifier: MIT
// PackageDocument is a Word document whose parts are found and whose styles are read, but not yet its text.
// Thread: one at a time.  Owner: DocxReader; refers to what it lists.
#pragma once

#include "documents/docx/DocumentStyles.h"
#include "documents/docx/PackageParts.h"
#include "documents/docx/ZipPackage.h"
#include "platform/styled_text/AttributedString.h"

struct PackageDocument {
    const ZipPackage &package;
    const ContentTypes &types;
    const QByteArray &mainPart;
    const Relationships &relationships; ///< of the main part
    const DocumentStyles &styles;
};

/// readDocx() of a document that may be within another one. Throws std::bad_alloc.
Result<AttributedString, DocumentError::Cause> readPackageDocument(
    QByteArrayView bytes, ReadAllowance &allowance);
