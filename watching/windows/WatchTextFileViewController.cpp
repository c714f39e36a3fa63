// SPDX-License-Identifier: MIT
#include "watching/windows/WatchTextFileViewController.h"

#include "common_views/ViewExtension.h"
#include "common_views/WindowExtension.h"
#include "platform/views/InterfaceFile.h"
#include "platform/views/Popover.h"
#include "presentation/PanelHost.h"

#include <algorithm>
#include <cmath>

namespace {

void setAnimating(const std::shared_ptr<ProgressIndicator> &indicator, bool isAnimating)
{
    if (indicator)
        indicator->setAnimating(isAnimating);
}

} // namespace

WatchTextFileViewController::WatchTextFileViewController(bool autoSyncActivityIndicator)
    : m_wordCounterViewController(std::make_shared<WordCounterViewController>())
    , m_shouldAutosyncActivityIndicator(autoSyncActivityIndicator)
{
}

WatchTextFileViewController::~WatchTextFileViewController() = default;

void WatchTextFileViewController::loadView()
{
    const auto interface =
        InterfaceFile::load(QStringLiteral(":/interface_files/WatchTextFileViewController.ui"));
    m_titleLabel = interface.outlet<Label>(QStringLiteral("titleForFileBeingWatchedLabel"));
    m_stopButton = interface.outlet<Button>(QStringLiteral("stopButton"));
    m_horizontalLine = interface.outlet<Box>(QStringLiteral("horizontalLine"));
    m_closeButton = interface.outlet<Button>(QStringLiteral("closeButton"));
    m_activityIndicator = interface.outlet<ProgressIndicator>(QStringLiteral("activityIndicator"));
    m_titleHeight = titleForFileBeingWatchedLabel()->frame().height();
    m_closeButtonHeight = closeButton()->frame().height();
    m_stopButtonSize = stopButton()->frame().size();
    PanelHost::fillPlace(interface, QStringLiteral("wordCounterView"), *m_wordCounterViewController);
    setView(interface.rootView());
}

void WatchTextFileViewController::viewDidLoad()
{
    ViewController::viewDidLoad();
    if (const auto button = closeButton()) {
        button->setHidden(!m_showsCloseButton);
        connect(button.get(), &Button::clicked, this, &WatchTextFileViewController::closeButtonAction);
    }
    if (const auto button = stopButton())
        connect(button.get(), &Button::clicked, this, &WatchTextFileViewController::stopButtonAction);
    m_wordCounterViewController->setLayoutDelegate(this);
    connect(view().get(), &View::frameDidChange, this,
        &WatchTextFileViewController::_viewControllersViewFrameDidChangeNotification);
    if (m_shouldAutosyncActivityIndicator)
        connect(m_wordCounterViewController.get(),
            &WordCounterViewController::isAsyncCountOperationInProgressChanged, this,
            &WatchTextFileViewController::isAsyncCountOperationInProgressDidChange);
}

void WatchTextFileViewController::viewWillAppear()
{
    ViewController::viewWillAppear();
    wordCounterViewControllerDidRelayoutLabels();
}

void WatchTextFileViewController::_viewControllersViewFrameDidChangeNotification()
{
    viewsFrameDidChange();
}

void WatchTextFileViewController::viewsFrameDidChange()
{
    const QSizeF size = view()->frame().size();
    const double middle = size.width() * 0.5;

    Outlet::setCenter(stopButton(), {middle, Outlet::frame(stopButton()).height() * 0.5});

    // The margin around the close button's cross may extend beyond the edges.
    const QSizeF close = Outlet::frame(closeButton()).size();
    Outlet::setFrameOrigin(
        closeButton(), {size.width() - close.width() + 2, size.height() - close.height() + 3});
    const double rowMiddle = Outlet::frame(closeButton()).center().y();
    Outlet::setCenter(titleForFileBeingWatchedLabel(), {middle, rowMiddle - 1});

    const double titleY = Outlet::frame(titleForFileBeingWatchedLabel()).y();
    const double lineHeight = Outlet::frame(horizontalLine()).height();
    Outlet::setFrame(horizontalLine(), {0, titleY - 2 * lineHeight + 1, size.width(), lineHeight});
    Outlet::setCenter(activityIndicator(), {Outlet::frame(activityIndicator()).center().x(), rowMiddle - 2});

    const QRectF stop = Outlet::frame(stopButton());
    const std::shared_ptr<View> &statistics = m_wordCounterViewController->view();
    statistics->setFrameSize({size.width(), statistics->frame().height()});
    statistics->setFrameOrigin({0, stop.y() + stop.height() - 1}); // overlaps the stop button by a point

    const std::vector<std::shared_ptr<View>> subviews = view()->subviews();
    for (const std::shared_ptr<View> &subview : subviews) {
        const QPointF origin = subview->frame().topLeft();
        subview->setFrameOrigin({std::floor(origin.x()), std::floor(origin.y())});
    }
}

void WatchTextFileViewController::fitControls()
{
    const auto title = titleForFileBeingWatchedLabel();
    if (!title || !closeButton() || !stopButton())
        return;
    const double titleHeight = std::max(m_titleHeight, title->fittingSize().height());
    // The close button has the height of the title row; the title has the row between spinner and button.
    const double side = closeButton()->frame().width();
    closeButton()->setFrameSize({side, m_closeButtonHeight + titleHeight - m_titleHeight});
    title->setFrameSize({std::max(0.0, view()->frame().width() - 2 * side), titleHeight});
    stopButton()->setFrameSize(stopButton()->fittingSize().expandedTo(m_stopButtonSize));
    viewsFrameDidChange();
    wordCounterViewControllerDidRelayoutLabels();
}

void WatchTextFileViewController::wordCounterViewControllerDidRelayoutLabels()
{
    m_wordCounterViewController->adjustViewHeightToFitVisibleLabels();
    const double height = Outlet::frame(stopButton()).height()
        + m_wordCounterViewController->view()->frame().height() + Outlet::frame(closeButton()).height();
    const QSizeF size(PanelHost::fittingWidth(*m_wordCounterViewController, view()->frame().width()), height);
    if (!isExactlyEqual(size, view()->frame().size()))
        resizeContainer(size);
    centerLabels();
}

void WatchTextFileViewController::resizeContainer(const QSizeF &size)
{
    Popover *const popover =
        m_delegate.get() ? m_delegate.get()->popoverFromPresenterForAutoResizeOrNil(*this) : nullptr;
    if (popover) {
        popover->setContentSize(size);
        view()->setFrameSize(size);
    } else if (Window *const window = view()->window()) {
        QBYExtension::setFrameSize(*window, size, true);
    }
}

void WatchTextFileViewController::centerLabels()
{
    const double middle = std::floor(view()->frame().width() * 0.5);
    for (const std::shared_ptr<Label> &label : m_wordCounterViewController->allTextfieldsForLayout())
        Outlet::setCenter(label, {middle, label->frame().center().y()});
}

void WatchTextFileViewController::setTitle(const std::optional<QString> &title)
{
    const QString text = title.value_or(QString());
    ViewController::setTitle(text);
    if (const auto label = titleForFileBeingWatchedLabel()) {
        label->setStringValue(text);
        label->setToolTip(text); // long names do not fit into the label
        label->setHidden(false);
    }
}

void WatchTextFileViewController::setShowsCloseButton(bool shows)
{
    m_showsCloseButton = shows;
    if (const auto button = closeButton())
        button->setHidden(!shows);
}

void WatchTextFileViewController::setSpinActivityIndicator(bool spins)
{
    if (spins == m_spinActivityIndicator)
        return;
    m_spinActivityIndicator = spins;
    setAnimating(activityIndicator(), spins);
}

void WatchTextFileViewController::closeButtonAction()
{
    const auto self = shared_from_this();
    if (WatchTextFileViewControllerDelegate *const receiver = m_delegate.get())
        receiver->watchTextFileViewControllerRequestedClose(*this);
}

void WatchTextFileViewController::stopButtonAction()
{
    const auto self = shared_from_this();
    if (WatchTextFileViewControllerDelegate *const receiver = m_delegate.get())
        receiver->watchTextFileViewControllerRequestedStop(this);
}

void WatchTextFileViewController::isAsyncCountOperationInProgressDidChange()
{
    if (sender() != m_wordCounterViewController.get())
        return;
    const bool isInProgress = m_wordCounterViewController->isAsyncCountOperationInProgress();
    setAnimating(activityIndicator(), isInProgress);
    _doTellDelegateThatActivityIndicatorAnimationStateChanged(isInProgress);
}

void WatchTextFileViewController::_doTellDelegateThatActivityIndicatorAnimationStateChanged(bool isAnimating)
{
    if (WatchTextFileViewControllerDelegate *const receiver = m_delegate.get())
        receiver->didChangeActivityIndicatorAnimationState(*this, isAnimating);
}
