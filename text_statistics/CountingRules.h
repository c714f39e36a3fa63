// SPDX-License-Identifier: MIT
// CountingRules is everything besides the text that a count rests on, as a value: whoever has the same rules
// and the same text gets the same numbers, in any process and on any thread. Thread: any; a value.
// localeIdentifier must be callable from the thread that counts.
#pragma once

#include <QString>

#include <functional>

struct CountingRules {
    /// Asked anew for every word that it may decide about, so that a count follows a locale changed
    /// meanwhile. A snapshot for another process gives a fixed identifier.
    std::function<QString()> localeIdentifier;
    /// How many sentences make a paragraph; 0 or more.
    qint64 minimumSentencesOfParagraph = 0;
    /// Whether a sentence counts only if it ends in a full stop, question mark or exclamation mark.
    bool sentencesNeedTerminalPunctuation = false;
};

/// The rules of this moment: the user's preferences and current locale.
CountingRules currentCountingRules();
