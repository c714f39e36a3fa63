// SPDX-License-Identifier: MIT
// Theme holds the fonts of a document theme for headings (major) and text (minor). Selecting one for a
// character is left to RunFormat.
// Thread: any.
#pragma once

#include "documents/package/ZipPackage.h"
#include "platform/system/Result.h"

#include <QByteArrayView>
#include <QHash>
#include <QString>

class Theme {
public:
    static Result<Theme, DocumentError::Cause> read(const ZipPackage &package, const QByteArray &partName);

    /// Empty if the theme has no such font. name: from an attribute of w:rFonts, such as "minorHAnsi".
    [[nodiscard]] QString font(QByteArrayView name) const { return m_fonts.value(name.toByteArray()); }

private:
    friend class ThemeReader;
    QHash<QByteArray, QString> m_fonts;
};

/// A font name from an attribute, truncated to the maximum length on any system.
QString fontNameOf(QByteArrayView name);
