// SPDX-License-Identifier: MIT
// DocumentStyles gathers what the parts beside the text say of how it is set.
// Thread: one at a time.
#pragma once

#include "platform/base/Result.h"
#include "platform/styled_text/docx/Numbering.h"
#include "platform/styled_text/docx/PackageParts.h"
#include "platform/styled_text/docx/StyleSheet.h"
#include "platform/styled_text/docx/Theme.h"

struct DocumentStyles {
    Theme theme;
    Numbering numbering;
    StyleSheet styleSheet;
    double defaultTabInterval = 36; ///< points

    /// Parts that the main part does not name, or that are not there, say nothing.
    static Result<DocumentStyles, DocxError> read(const ZipPackage &package, const Relationships &ofMainPart);
};
