// SPDX-License-Identifier: MIT
// Theme knows the fonts that a document's theme gives for headings (major) and text (minor).
// Thread: any.
#pragma once

#include "documents/docx/ZipPackage.h"
#include "platform/system/Result.h"

#include <QByteArrayView>
#include <QHash>
#include <QString>

class Theme {
public:
    static Result<Theme, DocumentError::Cause> read(const ZipPackage &package, const QByteArray &partName);

    /// name: as the attributes of rFonts name it: "minorHAnsi", "majorBidi". Empty where the theme has none.
    [[nodiscard]] QString font(QByteArrayView name) const { return m_fonts.value(name.toByteArray()); }

private:
    friend class ThemeReader;
    QHash<QByteArray, QString> m_fonts;
};

/// A font's name as it may stand in attributes: a longer one than any system allows is cut.
QString fontNameOf(QByteArrayView name);
