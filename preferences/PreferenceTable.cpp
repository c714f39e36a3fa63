// SPDX-License-Identifier: MIT
#include "preferences/PreferenceTable.h"

#include "preferences/StandardPage.h"

#include <array>
#include <cstddef>
#include <optional>

namespace {

struct Row {
    Preference preference;
    const char16_t *key;
    bool isAnnounced;
    std::optional<std::variant<bool, qint64>>
        firstLaunchDefault; // absent if it is not written then, or depends on the paper
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
    Row{Preference::TopMargin, u"PaperTopMarginValueUserDefaultsKey", false, std::nullopt},
    Row{Preference::BottomMargin, u"PaperBottomMarginValueUserDefaultsKey", false, std::nullopt},
    Row{Preference::ShowPages, u"ShowPagesUserDefaultsKey", true, std::nullopt},
    Row{Preference::ShowStandardPages, u"ShowStandardPagesUserDefaultsKey", true, std::nullopt},
    Row{Preference::ShowReadingTime, u"ShowReadingTimeUserDefaultsKey", true, std::nullopt},
    Row{Preference::ShowSpeakingTime, u"ShowSpeakingTimeUserDefaultsKey", true, std::nullopt},
    Row{Preference::ShowGraphemes, u"ShowGraphemesUserDefaultsKey", true, std::nullopt},
    Row{Preference::StandardPageSize, u"StandardPageSizeUserDefaultsKey", true, std::nullopt},
    Row{Preference::ReadingSpeed, u"ReadingSpeedUserDefaultsKey", true, std::nullopt},
    Row{Preference::SpeakingSpeed, u"SpeakingSpeedUserDefaultsKey", true, std::nullopt},
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

std::optional<DefaultsValue> unwrittenDefaultOf(Preference preference)
{
    switch (preference) {
    case Preference::ShowPages:
    case Preference::ShowStandardPages:
    case Preference::ShowReadingTime:
    case Preference::ShowSpeakingTime:
    case Preference::ShowGraphemes:
        return false;
    case Preference::StandardPageSize:
        return StandardPage().text();
    // The means for adults who read English, silently and aloud: M. Brysbaert, "How many words do we read per
    // minute? A review and meta-analysis of reading rate", Journal of Memory and Language 109 (2019).
    case Preference::ReadingSpeed:
        return qint64{238};
    case Preference::SpeakingSpeed:
        return qint64{183};
    case Preference::TopMargin:
    case Preference::BottomMargin:
        return 1.0;
    default:
        return std::nullopt;
    }
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
