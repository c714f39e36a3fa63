// SPDX-License-Identifier: MIT
#include "presentation/BaseWordCounterViewController.h"

#include "platform/session_bus/DistributedNotificationCenter.h"
#include "platform/views/InterfaceFile.h"
#include "preferences/QBYUserDefaultsController.h"

#include <algorithm>
#include <cmath>

namespace {

// Points.
constexpr double gapBetweenLabels = 11;
constexpr double gapBelowLastLabel = 5.5;

/// By Statistic.
constexpr std::array<QLatin1StringView, statisticCount> outletNames{QLatin1StringView("wordCountTextField"),
    QLatin1StringView("characterCountTextField"),
    QLatin1StringView("characterCountTextFieldIncludingWhiteSpace"),
    QLatin1StringView("numberOfSentecesTextField"), QLatin1StringView("numberOfLinesTextField"),
    QLatin1StringView("numberOfHardLineBreaksTextField"), QLatin1StringView("numberOfParagraphsTextField"),
    QLatin1StringView("numberOfIndentedParagraphsTextField")};

void setHidden(const std::shared_ptr<Label> &label, bool hidden)
{
    if (label)
        label->setHidden(hidden);
}

} // namespace

QString BaseWordCounterViewController::panelInterfaceFile()
{
    return QStringLiteral(":/interface_files/WordCounterViewController.ui");
}

BaseWordCounterViewController::BaseWordCounterViewController(QString interfaceFile)
    : m_interfaceFile(std::move(interfaceFile))
{
}

BaseWordCounterViewController::~BaseWordCounterViewController() = default;

void BaseWordCounterViewController::loadView()
{
    const auto interface = InterfaceFile::load(m_interfaceFile);
    for (std::size_t i = 0; i < statisticCount; ++i)
        m_outlets[i] = interface.outlet<Label>(QString(outletNames[i]));
    const std::shared_ptr<View> &root = interface.rootView();
    const auto policy = interface.integerProperty(root->identifier(), QStringLiteral("labelPositionPolicy"));
    if (policy)
        m_labelPositionPolicy = static_cast<WordCounterLabelPositionPolicy>(*policy);
    setView(root);
}

void BaseWordCounterViewController::viewDidLoad()
{
    ViewController::viewDidLoad();
    m_labelPositions.clear();
    m_allTextfieldsForLayout.clear();
    for (std::size_t i = 0; i < statisticCount; ++i) {
        const std::shared_ptr<Label> label = m_outlets[i].lock();
        if (!label)
            qFatal("The interface file of the statistics panel connects no label to the outlet %s.",
                outletNames[i].data());
        m_labelPositions.push_back(label->frame().topLeft());
        m_allTextfieldsForLayout.push_back(label);
        updateAccessibleName(*label);
        connect(label.get(), &Label::stringValueDidChange, this,
            [this, label = label.get()] { updateAccessibleName(*label); });
    }
    m_visibleTextfieldsForLayout = m_allTextfieldsForLayout;

    m_preferencesObserver = std::make_unique<NotificationObserver>(QBYPreferencesChangedNotification);
    connect(m_preferencesObserver.get(), &NotificationObserver::posted, this,
        &BaseWordCounterViewController::preferencesDidChange);

    updateArray();

    connect(view().get(), &View::frameDidChange, this,
        &BaseWordCounterViewController::_ourViewsFrameDidChangeNotification);
}

// Without the bullet, which screen readers would read out.
void BaseWordCounterViewController::updateAccessibleName(Label &label)
{
    QString name = label.stringValue();
    if (name.startsWith(u'•'))
        name.remove(0, 1);
    label.setAccessibleName(name.trimmed());
}

void BaseWordCounterViewController::updateArray()
{
    hideLabelsByPreferences();
    Labels &visible = m_visibleTextfieldsForLayout;
    const size_t oldCount = visible.size();
    std::erase_if(visible, [](const std::shared_ptr<Label> &label) { return label->isHidden(); });
    for (const std::shared_ptr<Label> &label : m_allTextfieldsForLayout) {
        if (!label->isHidden() && std::ranges::find(visible, label) == visible.end())
            visible.push_back(label);
    }
    std::ranges::stable_sort(visible, {}, [](const std::shared_ptr<Label> &label) { return label->tag(); });
    repositionLabels();
    if (visible.size() != oldCount && layoutDelegate())
        layoutDelegate()->wordCounterViewControllerDidChangeVisibleLabelsCount();
}

void BaseWordCounterViewController::hideLabelsByPreferences() const
{
    using Preferences = QBYUserDefaultsController;
    setHidden(characterCountTextField(), !Preferences::isShowCharacterCountPreferenceOn());
    // Hidden together with the character count, whatever its own preference.
    setHidden(characterCountTextFieldIncludingWhiteSpace(),
        !Preferences::isShowCharacterCountPreferenceOn()
            || !Preferences::isShowCharacterCountIncludingWhitespacePreferenceOn());
    setHidden(numberOfSentecesTextField(), !Preferences::isShowSentencesCountPreferenceOn());
    setHidden(numberOfLinesTextField(), !Preferences::isShowLineCountPreferenceOn());
    setHidden(numberOfHardLineBreaksTextField(), !Preferences::isShowHardLineBreakCountPreferenceOn());
    setHidden(numberOfParagraphsTextField(), !Preferences::isShowParagraphCountPreferenceOn());
    setHidden(
        numberOfIndentedParagraphsTextField(), !Preferences::isShowHardIndentParagraphCountPreferenceOn());
}

void BaseWordCounterViewController::repositionLabels()
{
    if (m_labelPositionPolicy == WordCounterLabelPositionPolicySlots)
        placeLabelsInSlots();
    else
        stackLabelsVertically();
    if (layoutDelegate())
        layoutDelegate()->wordCounterViewControllerDidRelayoutLabels();
}

void BaseWordCounterViewController::placeLabelsInSlots()
{
    // Not a range loop: a slot connected to a label's frame may change the visible labels.
    for (size_t i = 0; i < std::min(m_visibleTextfieldsForLayout.size(), m_labelPositions.size()); ++i) {
        const std::shared_ptr<Label> label = m_visibleTextfieldsForLayout[i];
        label->setFrameOrigin(m_labelPositions[i]);
    }
}

void BaseWordCounterViewController::stackLabelsVertically()
{
    const Labels labels = m_visibleTextfieldsForLayout;
    const View *superview = labels.empty() ? nullptr : labels.front()->superview();
    const QSizeF available = superview ? superview->frame().size() : QSizeF(0, 0);
    const double middle = available.width() * 0.5;
    double y = 0;
    for (size_t i = 0; i < labels.size(); ++i) {
        const QSizeF size = labels[i]->frame().size();
        y = std::floor(i == 0 ? available.height() - size.height() : y - (size.height() + gapBetweenLabels));
        labels[i]->setFrameOrigin({std::floor(middle - size.width() * 0.5), y});
    }
}

void BaseWordCounterViewController::adjustViewHeightToFitVisibleLabels()
{
    const Labels &visible = m_visibleTextfieldsForLayout;
    const double lastLabelsY = visible.empty() ? 0 : visible.back()->frame().y();
    const QSizeF size = view()->frame().size();
    view()->setFrameSize({size.width(), std::floor(size.height() + gapBelowLastLabel - lastLabelsY)});
}

void BaseWordCounterViewController::fitLabels()
{
    for (const std::shared_ptr<Label> &label : m_allTextfieldsForLayout)
        label->sizeToFit();
    repositionLabels();
}

void BaseWordCounterViewController::viewsFrameDidChange()
{
    repositionLabels();
    const std::vector<std::shared_ptr<View>> subviews = view()->subviews();
    for (const std::shared_ptr<View> &subview : subviews) {
        const QPointF origin = subview->frame().topLeft();
        subview->setFrameOrigin({std::floor(origin.x()), std::floor(origin.y())});
    }
}

void BaseWordCounterViewController::_ourViewsFrameDidChangeNotification()
{
    viewsFrameDidChange();
}

void BaseWordCounterViewController::preferencesDidChange()
{
    updateArray();
    repositionLabels(); // deliberately the second placement
}
