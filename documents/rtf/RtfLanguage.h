// SPDX-License-Identifier: MIT
// RtfLanguage converts between the language numbers of Windows (LCID) and BCP 47 tags.
// Thread: any.
#pragma once

#include <QString>

/// Empty if the number means no language, as 1024 does, or if ICU does not know it.
QString languageOfLcid(qint32 lcid);

/// The number of the language or of the nearest more general one, without a sort order; 0 if there is none.
int lcidOfLanguage(const QString &tag);
