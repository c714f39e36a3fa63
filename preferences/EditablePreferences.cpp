// SPDX-License-Identifier: MIT
#include "preferences/EditablePreferences.h"

#include "preferences/FurtherPreferences.h"
#include "preferences/QBYPaper.h"
#include "preferences/QBYUserDefaultsController.h"

#include <algorithm>
#include <array>

namespace {

using Controller = QBYUserDefaultsController;

constexpr qint64 maxMinimumOfSentences = 1000;

// NOLINTBEGIN(modernize-avoid-c-style-cast): template arguments are taken for casts
template <Preference preference>
constexpr SwitchAccessors furtherSwitch{[] { return FurtherPreferences::isShown(preference); },
    [](bool isOn) { FurtherPreferences::setShown(preference, isOn); }};

template <Preference preference>
constexpr NumberAccessors speed{[] { return FurtherPreferences::speed(preference); },
    [](qint64 number) { FurtherPreferences::setSpeed(preference, number); }, FurtherPreferences::maxSpeed,
    FurtherPreferences::minSpeed};

template <Preference preference, Preference opposite>
constexpr MarginAccessors verticalMargin{[] { return FurtherPreferences::verticalMargin(preference); },
    [](double inches) { FurtherPreferences::setVerticalMargin(preference, inches); },
    [] { return FurtherPreferences::verticalMargin(opposite); }, true};
// NOLINTEND(modernize-avoid-c-style-cast)

constexpr StandardPageAccessors standardPage{[] { return FurtherPreferences::standardPage().text(); },
    [](const QString &text) {
        if (const std::optional<StandardPage> page = StandardPage::fromText(text))
            FurtherPreferences::setStandardPage(*page);
    }};

constexpr std::array editable{
    EditablePreference{Preference::ShowCharacterCount, QLatin1StringView("show-characters"),
        SwitchAccessors{
            Controller::isShowCharacterCountPreferenceOn, Controller::setShowCharacterCountPreference}},
    EditablePreference{Preference::ShowCharacterCountIncludingWhitespace,
        QLatin1StringView("show-characters-with-whitespace"),
        SwitchAccessors{Controller::isShowCharacterCountIncludingWhitespacePreferenceOn,
            Controller::setShowCharacterCountIncludingWhitespacePreference}},
    EditablePreference{Preference::ShowSentencesCount, QLatin1StringView("show-sentences"),
        SwitchAccessors{
            Controller::isShowSentencesCountPreferenceOn, Controller::setShowSentencesCountPreference}},
    EditablePreference{Preference::ShowLineCount, QLatin1StringView("show-lines"),
        SwitchAccessors{Controller::isShowLineCountPreferenceOn, Controller::setShowLineCountPreference}},
    EditablePreference{Preference::ShowHardLineBreaksCount, QLatin1StringView("show-hard-line-breaks"),
        SwitchAccessors{Controller::isShowHardLineBreakCountPreferenceOn,
            Controller::setShowHardLineBreakCountPreference}},
    EditablePreference{Preference::ShowParagraphCount, QLatin1StringView("show-paragraphs"),
        SwitchAccessors{
            Controller::isShowParagraphCountPreferenceOn, Controller::setShowParagraphCountPreference}},
    EditablePreference{Preference::ShowHardIndentParagraphCount,
        QLatin1StringView("show-indented-paragraphs"),
        SwitchAccessors{Controller::isShowHardIndentParagraphCountPreferenceOn,
            Controller::setShowHardIndentParagraphCountPreference}},
    EditablePreference{Preference::MinNumberOfSentencesForParagraphCount,
        QLatin1StringView("minimum-sentences"),
        NumberAccessors{Controller::minNumberOfSentencesForParagraphCount,
            Controller::setMinNumberOfSentencesForParagraphCount, maxMinimumOfSentences}},
    EditablePreference{Preference::EnforceTrailingPeriodForSentencesCount,
        QLatin1StringView("terminal-punctuation"),
        SwitchAccessors{Controller::shouldEnforceTrailingPeriodForSentencesCount,
            Controller::setShouldEnforceTrailingPeriodForSentencesCount}},
    EditablePreference{Preference::SayWordCountOutLoudOnSaveInWatchFileMode,
        QLatin1StringView("speak-word-count"),
        SwitchAccessors{Controller::shouldSayWordCountOutloudOnSaveInWatchFileMode,
            Controller::setSayWordCountOutLoudOnSaveInWatchFileMode}},
    EditablePreference{Preference::PaperName, QLatin1StringView("paper"),
        PaperAccessors{Controller::paperNameForLineMeasuring, Controller::setCurrentPaperNamePreference}},
    EditablePreference{Preference::LeftMargin, QLatin1StringView("left-margin"),
        MarginAccessors{Controller::leftMarginForPaperSizeLineMeasuring,
            Controller::setLeftMarginForPaperSizeLineMeasuring,
            Controller::rightMarginForPaperSizeLineMeasuring}},
    EditablePreference{Preference::RightMargin, QLatin1StringView("right-margin"),
        MarginAccessors{Controller::rightMarginForPaperSizeLineMeasuring,
            Controller::setRightMarginForPaperSizeLineMeasuring,
            Controller::leftMarginForPaperSizeLineMeasuring}},
    EditablePreference{Preference::TopMargin, QLatin1StringView("top-margin"),
        verticalMargin<Preference::TopMargin, Preference::BottomMargin>},
    EditablePreference{Preference::BottomMargin, QLatin1StringView("bottom-margin"),
        verticalMargin<Preference::BottomMargin, Preference::TopMargin>},
    EditablePreference{
        Preference::ShowPages, QLatin1StringView("show-pages"), furtherSwitch<Preference::ShowPages>},
    EditablePreference{Preference::ShowStandardPages, QLatin1StringView("show-standard-pages"),
        furtherSwitch<Preference::ShowStandardPages>},
    EditablePreference{Preference::ShowReadingTime, QLatin1StringView("show-reading-time"),
        furtherSwitch<Preference::ShowReadingTime>},
    EditablePreference{Preference::ShowSpeakingTime, QLatin1StringView("show-speaking-time"),
        furtherSwitch<Preference::ShowSpeakingTime>},
    EditablePreference{Preference::ShowGraphemes, QLatin1StringView("show-graphemes"),
        furtherSwitch<Preference::ShowGraphemes>},
    EditablePreference{Preference::StandardPageSize, QLatin1StringView("standard-page"), standardPage},
    EditablePreference{
        Preference::ReadingSpeed, QLatin1StringView("reading-speed"), speed<Preference::ReadingSpeed>},
    EditablePreference{
        Preference::SpeakingSpeed, QLatin1StringView("speaking-speed"), speed<Preference::SpeakingSpeed>},
};

std::optional<DefaultsValue> valueFrom(const PaperAccessors &accessors)
{
    const std::optional<QString> name = accessors.get();
    return name ? std::optional<DefaultsValue>(*name) : std::nullopt;
}

template <typename Accessors>
std::optional<DefaultsValue> valueFrom(const Accessors &accessors)
{
    return accessors.get();
}

std::optional<DefaultsValue> fixedDefaultOf(Preference preference)
{
    for (const DefaultsEntry &entry : fixedFirstLaunchDefaults()) {
        if (entry.key == keyOf(preference))
            return entry.value;
    }
    return std::nullopt;
}

} // namespace

std::span<const EditablePreference> editablePreferences()
{
    return editable;
}

const EditablePreference *editablePreferenceNamed(QStringView name)
{
    const auto *const found =
        std::find_if(editable.begin(), editable.end(), [&](const auto &row) { return row.name == name; });
    return found == editable.end() ? nullptr : found;
}

const EditablePreference &editablePreference(Preference preference)
{
    return *std::find_if(
        editable.begin(), editable.end(), [&](const auto &row) { return row.preference == preference; });
}

std::optional<DefaultsValue> valueOf(const EditablePreference &preference)
{
    return std::visit([](const auto &accessors) { return valueFrom(accessors); }, preference.accessors);
}

bool setValue(const EditablePreference &preference, const DefaultsValue &value)
{
    const auto set = [&value](const auto &accessors) {
        // The kind of the argument is that of the accessor's only parameter.
        const auto apply = [&value]<typename Argument>(void (*setter)(Argument)) {
            if (const auto *wanted = std::get_if<std::remove_cvref_t<Argument>>(&value))
                setter(*wanted);
        };
        apply(accessors.set);
    };
    std::visit(set, preference.accessors);
    return valueOf(preference) == value;
}

std::optional<DefaultsValue> defaultValueOf(
    const EditablePreference &preference, const PrinterAnswer &printer)
{
    if (const std::optional<DefaultsValue> fixed = fixedDefaultOf(preference.preference))
        return fixed;
    if (const std::optional<DefaultsValue> unwritten = unwrittenDefaultOf(preference.preference))
        return unwritten;
    if (!printer.defaultPaper)
        return std::nullopt;
    const QBYPaper paper(*printer.defaultPaper);
    switch (preference.preference) {
    case Preference::PaperName:
        return paper.paperName() ? std::optional<DefaultsValue>(*paper.paperName()) : std::nullopt;
    case Preference::LeftMargin:
        return paper.leftMarginInInches();
    default:
        return paper.rightMarginInInches();
    }
}

double maxMargin(double paperSide, double oppositeMargin)
{
    return std::max(0.0, paperSide / pointsPerInch - std::max(0.0, oppositeMargin) - minColumnInInches);
}

bool leaveColumn(double leftMargin, double rightMargin, double paperWidth)
{
    return leftMargin + rightMargin + minColumnInInches <= paperWidth / pointsPerInch;
}
