// SPDX-License-Identifier: MIT
#include "preferences/PreferenceTable.h"

#include <array>
#include <cstddef>
#include <optional>

namespace {

struct Row {
    Preference preference;
    const char16_t *key;
    bool isAnnounced;
    std::optional<std::variant<bool, qint64>> firstLaunchDefault; // absent if it depends on the paper
};

constexpr std::array table{
    Row{Preference::ShowCharacterCount, u"ShowCharacterCountUserDefaultKey", true, true},
    Row{Preference::ShowCharacterCountIncludingWhitespace, u"ShowCharacterCountUserDefaultKeyUsingWhitespace",
        true, true},
    Row{Preference::ShowSentencesCount, u"ShowSentencesCountUserDefaultKey", true, true},
    Row{Preference::ShowLineCount, u"ShowLineCountUserDefaultKey", true, true},
    Row{Preference::ShowHardLineBreaksCount, u"ShowHardLineBreaksCountUserDefaultKey", true, true},
    Row{Preference::ShowParagraphCount, u"ShowParagraphCountUserDefaultKey", true, true},
    Row{Preference::ShowHardIndentParagraphCount, u"ShowHardIndentParagraphCountUserDefaultKey", true, true},
    Row{Preference::MinNumberOfSentencesForParagraphCount,
        u"MinNumberOfSentencesToEnforceForParagraphCountDefaultsKey", true, qint64{0}},
    Row{Preference::EnforceTrailingPeriodForSentencesCount, u"EnforceSentencesEndWithPeriodUserDefaultKey",
        false, true},
    Row{Preference::SayWordCountOutLoudOnSaveInWatchFileMode, u"SayWordCountOutloudOnSaveInWatchFileMode",
        true, false},
    Row{Preference::PaperName, u"PaperNameForPageToLineMeasureUserDefaultsKey", true, std::nullopt},
    Row{Preference::LeftMargin, u"PaperLeftMarginValueUserDefaultsKey", false, std::nullopt},
    Row{Preference::RightMargin, u"PaperRightMarginValueUserDefaultsKey", false, std::nullopt},
    Row{Preference::HasAppBeenOpened, u"HasAppBeenOpenedKey", false, std::nullopt},
};

constexpr const Row &rowOf(Preference preference)
{
    return table[static_cast<std::size_t>(preference)];
}

constexpr bool isInEnumerationOrder()
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (static_cast<std::size_t>(table[i].preference) != i)
            return false;
    }
    return table.size() == static_cast<std::size_t>(Preference::HasAppBeenOpened) + 1;
}
static_assert(isInEnumerationOrder());

} // namespace

QString keyOf(Preference preference)
{
    return QString::fromUtf16(rowOf(preference).key);
}

bool isAnnounced(Preference preference)
{
    return rowOf(preference).isAnnounced;
}

std::vector<DefaultsEntry> fixedFirstLaunchDefaults()
{
    std::vector<DefaultsEntry> entries;
    for (const Row &row : table) {
        if (!row.firstLaunchDefault)
            continue;
        const auto value =
            std::visit([](auto fixed) { return DefaultsValue(fixed); }, *row.firstLaunchDefault);
        entries.push_back({keyOf(row.preference), value});
    }
    return entries;
}
