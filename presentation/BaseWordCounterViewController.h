// SPDX-License-Identifier: MIT
// BaseWordCounterViewController is the layout half of the statistics panel: it shows those of its eight
// labels that the user wants to see, and places them. The texts of the labels and the size of the window
// around them are left to others.
// Thread: main.  Owner: the panel's host, which is also its layout delegate; refers back to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"
#include "platform/views/Controls.h"
#include "platform/views/ViewController.h"
#include "presentation/WordCounterViewControllerLayoutDelegate.h"
#include "text_statistics/QBYWordCounterStats.h"

#include <QPointF>

#include <array>
#include <memory>
#include <vector>

class NotificationObserver;

/// Any value other than 0 stacks.
enum WordCounterLabelPositionPolicy : qint64 {
    WordCounterLabelPositionPolicySlots = 0, ///< the i-th visible label takes the i-th design-time place
    WordCounterLabelPositionPolicyStacked = 1, ///< from the top of the panel down, each centred
};

/// Follows the preferences, whichever process changes them, and the frame of its own view. Frames are in
/// points, with the origin at the bottom left.
class BaseWordCounterViewController : public ViewController {
public:
    using Labels = std::vector<std::shared_ptr<Label>>;

    /// The resource name of the product's own interface file. Its labels have the tags 1 to 8 in canonical
    /// order; its labelPositionPolicy is 0.
    static QString panelInterfaceFile();

    /// interfaceFile: contains the eight labels under the names of their outlets.
    explicit BaseWordCounterViewController(QString interfaceFile = panelInterfaceFile());
    BaseWordCounterViewController(const BaseWordCounterViewController &) = delete;
    BaseWordCounterViewController &operator=(const BaseWordCounterViewController &) = delete;
    ~BaseWordCounterViewController() override;

    [[nodiscard]] WordCounterLabelPositionPolicy labelPositionPolicy() const { return m_labelPositionPolicy; }
    /// Takes effect at the next placement.
    void setLabelPositionPolicy(WordCounterLabelPositionPolicy policy) { m_labelPositionPolicy = policy; }

    /// The label that shows this statistic; null if it is not connected or has been destroyed. The outlets
    /// are weak: the views above the labels own them. The accessors below get and set the same outlets.
    [[nodiscard]] std::shared_ptr<Label> textField(Statistic statistic) const
    {
        return m_outlets.at(static_cast<std::size_t>(statistic)).lock();
    }
    void setTextField(Statistic statistic, const std::shared_ptr<Label> &label)
    {
        m_outlets.at(static_cast<std::size_t>(statistic)) = label;
    }
    [[nodiscard]] std::shared_ptr<Label> wordCountTextField() const { return textField(Statistic::Words); }
    [[nodiscard]] std::shared_ptr<Label> characterCountTextField() const
    {
        return textField(Statistic::Characters);
    }
    [[nodiscard]] std::shared_ptr<Label> characterCountTextFieldIncludingWhiteSpace() const
    {
        return textField(Statistic::CharactersIncludingWhitespace);
    }
    [[nodiscard]] std::shared_ptr<Label> numberOfSentecesTextField() const
    {
        return textField(Statistic::Sentences);
    }
    [[nodiscard]] std::shared_ptr<Label> numberOfLinesTextField() const
    {
        return textField(Statistic::Lines);
    }
    [[nodiscard]] std::shared_ptr<Label> numberOfHardLineBreaksTextField() const
    {
        return textField(Statistic::HardLineBreaks);
    }
    [[nodiscard]] std::shared_ptr<Label> numberOfParagraphsTextField() const
    {
        return textField(Statistic::Paragraphs);
    }
    [[nodiscard]] std::shared_ptr<Label> numberOfIndentedParagraphsTextField() const
    {
        return textField(Statistic::IndentedParagraphs);
    }
    void setWordCountTextField(const std::shared_ptr<Label> &label) { setTextField(Statistic::Words, label); }
    void setCharacterCountTextField(const std::shared_ptr<Label> &label)
    {
        setTextField(Statistic::Characters, label);
    }
    void setCharacterCountTextFieldIncludingWhiteSpace(const std::shared_ptr<Label> &label)
    {
        setTextField(Statistic::CharactersIncludingWhitespace, label);
    }
    void setNumberOfSentecesTextField(const std::shared_ptr<Label> &label)
    {
        setTextField(Statistic::Sentences, label);
    }
    void setNumberOfLinesTextField(const std::shared_ptr<Label> &label)
    {
        setTextField(Statistic::Lines, label);
    }
    void setNumberOfHardLineBreaksTextField(const std::shared_ptr<Label> &label)
    {
        setTextField(Statistic::HardLineBreaks, label);
    }
    void setNumberOfParagraphsTextField(const std::shared_ptr<Label> &label)
    {
        setTextField(Statistic::Paragraphs, label);
    }
    void setNumberOfIndentedParagraphsTextField(const std::shared_ptr<Label> &label)
    {
        setTextField(Statistic::IndentedParagraphs, label);
    }

    /// The labels that are not hidden, by their tags. Like the next two, empty before viewDidLoad().
    [[nodiscard]] const Labels &visibleTextfieldsForLayout() const { return m_visibleTextfieldsForLayout; }
    void setVisibleTextfieldsForLayout(Labels labels) { m_visibleTextfieldsForLayout = std::move(labels); }
    /// All eight, in canonical order.
    [[nodiscard]] const Labels &allTextfieldsForLayout() const { return m_allTextfieldsForLayout; }
    void setAllTextfieldsForLayout(Labels labels) { m_allTextfieldsForLayout = std::move(labels); }
    /// The design-time origins of all eight, in canonical order: the slots.
    [[nodiscard]] const std::vector<QPointF> &labelPositions() const { return m_labelPositions; }
    void setLabelPositions(std::vector<QPointF> positions) { m_labelPositions = std::move(positions); }

    [[nodiscard]] WordCounterViewControllerLayoutDelegate *layoutDelegate() const
    {
        return m_layoutDelegate.get();
    }
    void setLayoutDelegate(WordCounterViewControllerLayoutDelegate *delegate) { m_layoutDelegate = delegate; }

    /// Creates view and outlets from the interface file, and reads the label position policy from it if it
    /// has one. Ends the process if the file is unusable, as the file is part of the program.
    void loadView() override;

    /// Reads the slots, shows and places the labels, and starts to follow preferences and frame. Ends the
    /// process if an outlet is not connected: the interface file is then broken.
    void viewDidLoad() override;

    /// Shows and hides the labels by the current preferences, and places them.
    void updateArray();
    /// Places the visible labels by the policy and notifies the delegate; the delegate alone before
    /// viewDidLoad().
    void repositionLabels();
    /// Places the visible labels from the top of the first one's superview down, 11 points apart.
    void stackLabelsVertically();
    /// Makes the panel's view end 5.5 points below the last visible label, rounded down to whole points; its
    /// width and origin stay. Only hosts call it.
    void adjustViewHeightToFitVisibleLabels();
    /// Sizes every label to its text and places them. Hosts call it when the text metrics of their window
    /// change.
    void fitLabels();
    /// Places the labels, and moves every direct subview of the panel's view down and left to whole points.
    void viewsFrameDidChange();

private:
    void hideLabelsByPreferences() const;
    void placeLabelsInSlots();
    void updateAccessibleName(Label &label);
    void preferencesDidChange();
    void _ourViewsFrameDidChangeNotification();

    const QString m_interfaceFile;
    WordCounterLabelPositionPolicy m_labelPositionPolicy = WordCounterLabelPositionPolicySlots;
    std::array<std::weak_ptr<Label>, statisticCount> m_outlets; ///< by Statistic
    Labels m_visibleTextfieldsForLayout;
    Labels m_allTextfieldsForLayout;
    std::vector<QPointF> m_labelPositions;
    WeakDelegate<WordCounterViewControllerLayoutDelegate> m_layoutDelegate;
    std::unique_ptr<NotificationObserver> m_preferencesObserver;
};
