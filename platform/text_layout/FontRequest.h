// SPDX-License-Identifier: MIT
// FontRequest is the font that a text asks for, apart from its size: family, weight and slant, as parsed from
// the name in the document. Finding the font is left to FontLibrary.
// Thread: any; a value.
#pragma once

#include "platform/styled_text/TextAttributes.h"

#include <QString>
#include <QStringList>

struct FontRequest {
    QStringList families; ///< keys of familyKey(), best first; never empty
    int weight = 400; ///< 1 to 1000, as usWeightClass of OpenType
    FontSlant slant = FontSlant::Upright;

    bool operator==(const FontRequest &) const = default;
};

/// Family names are compared in this form: lower-case letters and digits only.
QString familyKey(QStringView family);

/// The families for text without a font, which means Helvetica: that and its substitutes.
const QStringList &defaultFamilies();

/// Whether a family has the same advances as Helvetica, unlike the last resorts among the default families.
/// key: of familyKey().
bool hasDefaultAdvances(const QString &key);

/// Parses a name as documents write it: a family ("Times New Roman") or a PostScript name ("Helvetica-Bold",
/// "TimesNewRomanPSMT"). The family itself is followed by the families with the same advances, then by the
/// default ones, so that a name gives the same font on every machine with the same fonts.
FontRequest makeFontRequest(const FontAttributes &attributes);
