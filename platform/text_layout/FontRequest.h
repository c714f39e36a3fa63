// SPDX-License-Identifier: MIT
// FontRequest is what a text asks of a font, apart from its size: the name that the document gives, read into
// family, weight and slant.
// Thread: any; a value.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QString>
#include <QStringList>

struct FontRequest {
    QStringList families; ///< keys of familyKey(), the most wanted first; never empty
    int weight = 400; ///< 1 to 1000, as usWeightClass of OpenType
    FontSlant slant = FontSlant::Upright;

    bool operator==(const FontRequest &) const = default;
};

/// The form in which family names are compared: small letters and digits only.
QString familyKey(QStringView family);

/// The families that stand in for Helvetica, in which text is set that names no font.
const QStringList &defaultFamilies();

/// Reads a name as documents write it: a family ("Times New Roman") or a PostScript name ("Helvetica-Bold",
/// "TimesNewRomanPSMT"). Behind the family itself come the families with the same advances, then the default
/// ones; so the same name leads to the same font on every machine with the same fonts.
FontRequest fontRequestFor(const FontAttributes &attributes);
