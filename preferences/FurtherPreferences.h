// SPDX-License-Identifier: MIT
// FurtherPreferences reads and writes the preferences of the counts beside the eight statistics. The first
// launch does not write them: until the user sets one, it has the value of unwrittenDefaultOf().
// Thread: any.
#pragma once

#include "preferences/PreferenceTable.h"
#include "preferences/StandardPage.h"

namespace FurtherPreferences {

/// Words per minute.
inline constexpr qint64 minSpeed = 20;
inline constexpr qint64 maxSpeed = 2000;

// Every getter reads from disk. A setter returns when the value is on disk; a write error is only logged.
// What is announced is what isAnnounced() says.

/// Of one of the switches Show….
bool isShown(Preference preference);
void setShown(Preference preference, bool isShown);

/// What is stored by hand and is no standard page reads as the default one.
StandardPage standardPage();
void setStandardPage(const StandardPage &page);

/// Of ReadingSpeed or SpeakingSpeed, in words per minute; always in the range.
qint64 speed(Preference preference);
void setSpeed(Preference preference, qint64 wordsPerMinute);

/// Of TopMargin or BottomMargin, in inches; finite and 0 or more.
double verticalMargin(Preference preference);
void setVerticalMargin(Preference preference, double inches);

} // namespace FurtherPreferences
