// SPDX-License-Identifier: MIT
// EnglishTexts keeps the texts of one thread in English, for log lines, which are the same in every language.
// Thread: any; each has its own.
#pragma once

#include <utility>

/// As long as it lives. Scopes can be inside each other.
class EnglishTexts {
public:
    EnglishTexts();
    ~EnglishTexts();
    EnglishTexts(const EnglishTexts &) = delete;
    EnglishTexts &operator=(const EnglishTexts &) = delete;

    /// Whether the thread wants English at the moment.
    static bool areWanted();
};

/// What the function returns where texts are English.
template <typename Function>
auto inEnglish(Function &&function)
{
    const EnglishTexts texts;
    return std::forward<Function>(function)();
}
