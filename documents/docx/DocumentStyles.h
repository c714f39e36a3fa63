// SPDX-License-Identifier: MIT
// DocumentStyles gathers what the parts beside the text say of how it is set.
// Thread: one at a time.
#pragma once

#include "documents/docx/Numbering.h"
#include "documents/docx/PackageParts.h"
#include "documents/docx/StyleSheet.h"
#include "documents/docx/Theme.h"
#include "platform/system/Result.h"

struct DocumentStyles {
    Theme theme;
    Numbering numbering;
    StyleSheet styleSheet;
    double defaultTabInterval = 36; ///< points

    /// Parts that the main part does not name, or that are not there, say nothing.
    static Result<DocumentStyles, DocumentError::Cause> read(
        const ZipPackage &package, const Relationships &ofMainPart);
};
