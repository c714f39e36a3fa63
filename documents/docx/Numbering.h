// SPDX-License-Identifier: MIT
// Numbering holds the paragraph properties of the list levels of a document. The numbers themselves are not
// text.
// Thread: any.
#pragma once

#include "documents/docx/ParagraphProperties.h"
#include "documents/package/ZipPackage.h"
#include "platform/system/Result.h"

#include <QHash>

class Numbering {
public:
    static Result<Numbering, DocumentError::Cause> read(
        const ZipPackage &package, const QByteArray &partName);

    /// Null if the list or the level is not defined.
    [[nodiscard]] const ParagraphProperties *levelOf(int list, int level) const;

private:
    friend class NumberingReader;
    using Level = QPair<int, int>; // list and level

    QHash<Level, ParagraphProperties> m_definitions; // by abstract list
    QHash<Level, ParagraphProperties> m_overrides; // by list
    QHash<int, int> m_abstractLists; // by list
    QHash<int, QByteArray> m_namedLists; // from abstract list to the list style that defines it
    QHash<QByteArray, int> m_listOfStyle; // from list style to the abstract list with its levels
};
