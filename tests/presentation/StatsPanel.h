// SPDX-License-Identifier: MIT
// StatsPanel is a statistics panel made of plain rectangles, on no screen, for tests.
// Thread: main.  Owner: the test.
#pragma once

#include "preferences/PreferenceTable.h"
#include "preferences/QBYUserDefaultsController.h"
#include "presentation/BaseWordCounterViewController.h"

#include <gtest/gtest.h>

#include <array>
#include <initializer_list>
#include <span>
#include <vector>

/// Switches these statistics on and all others off, without a notification.
inline void preferOnly(std::initializer_list<Preference> statistics)
{
    UserDefaults &defaults = QBYUserDefaultsController::sharedUserDefaults();
    for (const Preference preference :
        {Preference::ShowCharacterCount, Preference::ShowCharacterCountIncludingWhitespace,
            Preference::ShowSentencesCount, Preference::ShowLineCount, Preference::ShowHardLineBreaksCount,
            Preference::ShowParagraphCount, Preference::ShowHardIndentParagraphCount})
        ASSERT_TRUE(defaults.setObject(
            std::ranges::find(statistics, preference) != statistics.end(), keyOf(preference)));
}

inline constexpr std::initializer_list<Preference> everyStatistic = {Preference::ShowCharacterCount,
    Preference::ShowCharacterCountIncludingWhitespace, Preference::ShowSentencesCount,
    Preference::ShowLineCount, Preference::ShowHardLineBreaksCount, Preference::ShowParagraphCount,
    Preference::ShowHardIndentParagraphCount};

/// Records its calls.
class RecordingLayoutDelegate : public WordCounterViewControllerLayoutDelegate {
public:
    void wordCounterViewControllerDidRelayoutLabels() override { calls.emplace_back("relayout"); }
    void wordCounterViewControllerDidChangeVisibleLabelsCount() override { calls.emplace_back("count"); }

    std::vector<std::string> calls;
};

/// labels: in canonical order.
inline void connectOutlets(
    BaseWordCounterViewController &controller, std::span<const std::shared_ptr<Label>> labels)
{
    controller.setWordCountTextField(labels[0]);
    controller.setCharacterCountTextField(labels[1]);
    controller.setCharacterCountTextFieldIncludingWhiteSpace(labels[2]);
    controller.setNumberOfSentecesTextField(labels[3]);
    controller.setNumberOfLinesTextField(labels[4]);
    controller.setNumberOfHardLineBreaksTextField(labels[5]);
    controller.setNumberOfParagraphsTextField(labels[6]);
    controller.setNumberOfIndentedParagraphsTextField(labels[7]);
}

class StatsPanel {
public:
    static constexpr size_t numberOfLabels = 8;

    /// Label k (from 1) is 80 by 17 points at (10 k, 100 - 10 k), with the tag k.
    explicit StatsPanel(const QSizeF &size = {200, 120})
        : view(std::make_shared<View>(QRectF({0, 0}, size)))
    {
        for (size_t i = 0; i < numberOfLabels; ++i) {
            const double offset = 10 * static_cast<double>(i + 1);
            labels[i] = std::make_shared<Label>(QRectF(offset, 100 - offset, 80, 17));
            labels[i]->setTag(static_cast<qint64>(i) + 1);
            view->addSubview(labels[i]);
        }
        connectOutlets(controller, labels);
        controller.setView(view);
        controller.setLayoutDelegate(&delegate);
    }

    [[nodiscard]] std::shared_ptr<Label> label(size_t number) const { return labels.at(number - 1); }
    /// The tags of the visible labels in their order.
    [[nodiscard]] std::vector<qint64> visibleTags() const
    {
        std::vector<qint64> tags;
        for (const std::shared_ptr<Label> &label : controller.visibleTextfieldsForLayout())
            tags.push_back(label->tag());
        return tags;
    }

    std::shared_ptr<View> view;
    std::array<std::shared_ptr<Label>, numberOfLabels> labels;
    RecordingLayoutDelegate delegate;

    class Controller : public BaseWordCounterViewController {
    public:
        void loadView() override { }
    };
    Controller controller;
};
