// SPDX-License-Identifier: MIT
// RtfLanguage turns the numbers that Windows has for languages (LCID) into BCP 47 tags.
// Thread: any.
#pragma once

#include <QString>

/// Empty where the number means none, as 1024 does, or where ICU knows none.
QString languageOfLcid(qint32 lcid);
