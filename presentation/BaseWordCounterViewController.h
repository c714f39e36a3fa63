// SPDX-License-Identifier: MIT
// BaseWordCounterViewController is the layout half of the statistics panel: it shows those of its eight
// labels that the user wants to see, and places them. What the labels say, and how large the window around
// them is, it leaves to others. Thread: main.  Owner: the panel's host, which is also its layout delegate;
// refers back to it weakly.
#pragma once

#include "platform/system/WeakDelegate.h"
#include "platform/views/Controls.h"
#include "platform/views/ViewController.h"
#include "presentation/WordCounterViewControllerLayoutDelegate.h"

#include <QPointF>

#include <array>
#include <memory>
#include <vector>

class NotificationObserver;

/// Any other value than 0 stacks.
enum WordCounterLabelPositionPolicy : qint64 {
    WordCounterLabelPositionPolicySlots = 0, ///< the i-th visible label takes the i-th design-time place
    WordCounterLabelPositionPolicyStacked = 1, ///< from the top of the panel down, each centred
};

/// Follows the preferences of every process of the product, and the frame of its own view. Frames are points,
/// with the origin at the bottom left.
class BaseWordCounterViewController : public ViewController {
public:
    using Labels = std::vector<std::shared_ptr<Label>>;

    /// The interface file of the panel that comes with the program, a resource. Its labels have the tags 1 to
    /// 8 in canonical order; labelPositionPolicy is 0.
    static QString panelInterfaceFile();

    /// interfaceFile: of the panel, with the eight labels under the names of their outlets.
    explicit BaseWordCounterViewController(QString interfaceFile = panelInterfaceFile());
    BaseWordCounterViewController(const BaseWordCounterViewController &) = delete;
    BaseWordCounterViewController &operator=(const BaseWordCounterViewController &) = delete;
    ~BaseWordCounterViewController() override;

    [[nodiscard]] WordCounterLabelPositionPolicy labelPositionPolicy() const { return m_labelPositionPolicy; }
    /// Takes effect at the next placement.
    void setLabelPositionPolicy(WordCounterLabelPositionPolicy policy) { m_labelPositionPolicy = policy; }

    // The eight outlets, in canonical order. They are weak: the views above the labels own them.
    [[nodiscard]] std::shared_ptr<Label> wordCountTextField() const { return outlet(0); }
    [[nodiscard]] std::shared_ptr<Label> characterCountTextField() const { return outlet(1); }
    [[nodiscard]] std::shared_ptr<Label> characterCountTextFieldIncludingWhiteSpace() const
    {
        return outlet(2);
    }
    [[nodiscard]] std::shared_ptr<Label> numberOfSentecesTextField() const { return outlet(3); }
    [[nodiscard]] std::shared_ptr<Label> numberOfLinesTextField() const { return outlet(4); }
    [[nodiscard]] std::shared_ptr<Label> numberOfHardLineBreaksTextField() const { return outlet(5); }
    [[nodiscard]] std::shared_ptr<Label> numberOfParagraphsTextField() const { return outlet(6); }
    [[nodiscard]] std::shared_ptr<Label> numberOfIndentedParagraphsTextField() const { return outlet(7); }
    void setWordCountTextField(const std::shared_ptr<Label> &label) { m_outlets[0] = label; }
    void setCharacterCountTextField(const std::shared_ptr<Label> &label) { m_outlets[1] = label; }
    void setCharacterCountTextFieldIncludingWhiteSpace(const std::shared_ptr<Label> &label)
    {
        m_outlets[2] = label;
    }
    void setNumberOfSentecesTextField(const std::shared_ptr<Label> &label) { m_outlets[3] = label; }
    void setNumberOfLinesTextField(const std::shared_ptr<Label> &label) { m_outlets[4] = label; }
    void setNumberOfHardLineBreaksTextField(const std::shared_ptr<Label> &label) { m_outlets[5] = label; }
    void setNumberOfParagraphsTextField(const std::shared_ptr<Label> &label) { m_outlets[6] = label; }
    void setNumberOfIndentedParagraphsTextField(const std::shared_ptr<Label> &label) { m_outlets[7] = label; }

    /// The labels that are not hidden, by their tags. Empty before viewDidLoad(), as the next two.
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

    /// Makes view and outlets from the interface file, and takes the label position policy from it where it
    /// has one. The process ends where the file cannot be used: it is a part of the program.
    void loadView() override;

    /// Takes the slots, shows and places the labels, and begins to follow preferences and frame. All eight
    /// outlets must be connected: the process ends where one is not, since an interface file without it is a
    /// broken build.
    void viewDidLoad() override;

    /// Shows and hides the labels as the preferences have it now, and places them.
    void updateArray();
    /// Places the visible labels by the policy and tells the delegate. Before viewDidLoad() there are none to
    /// place, but the delegate is told.
    void repositionLabels();
    /// Places the visible labels from the top of the superview of the first one down, 11 points apart.
    void stackLabelsVertically();
    /// Makes the panel's view end 5.5 points below the last visible label, rounded down to whole points; its
    /// width and its origin stay. The panel leaves it to its host to ask for this.
    void adjustViewHeightToFitVisibleLabels();
    /// Sizes every label to its text and places them. Hosts call it when the text metrics of their window
    /// change.
    void fitLabels();
    /// Places the labels, and moves every direct subview of the panel's view down and left to whole points.
    void viewsFrameDidChange();

private:
    static constexpr size_t numberOfLabels = 8;

    [[nodiscard]] std::shared_ptr<Label> outlet(size_t index) const { return m_outlets[index].lock(); }
    void hideLabelsByPreferences();
    void putLabelsIntoSlots();
    void nameForScreenReaders(Label &label);
    void preferencesDidChange();
    void _ourViewsFrameDidChangeNotification();

    const QString m_interfaceFile;
    WordCounterLabelPositionPolicy m_labelPositionPolicy = WordCounterLabelPositionPolicySlots;
    std::array<std::weak_ptr<Label>, numberOfLabels> m_outlets;
    Labels m_visibleTextfieldsForLayout;
    Labels m_allTextfieldsForLayout;
    std::vector<QPointF> m_labelPositions;
    WeakDelegate<WordCounterViewControllerLayoutDelegate> m_layoutDelegate;
    std::unique_ptr<NotificationObserver> m_preferencesObserver;
};
