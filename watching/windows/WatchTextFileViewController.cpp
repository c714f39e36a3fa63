// SPDX-License-Identifier: MIT
#include "watching/windows/WatchTextFileViewController.h"

#include "common_views/ViewExtension.h"
#include "common_views/WindowExtension.h"
#include "platform/views/InterfaceFile.h"
#include "platform/views/Popover.h"
#include "presentation/PanelPlace.h"

#include <cmath>

namespace {

constexpr double roomBesideWidestLabel = 10; // points

QRectF frameOf(const std::shared_ptr<View> &view)
{
    return view ? view->frame() : QRectF(0, 0, 0, 0);
}

void setCenter(const std::shared_ptr<View> &view, const QPointF &center)
{
    if (view)
        QBYExtension::setCenter(*view, center);
}

void setAnimating(const std::shared_ptr<ProgressIndicator> &indicator, bool animating)
{
    if (!indicator)
        return;
    if (animating)
        indicator->startAnimation();
    else
        indicator->stopAnimation();
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
    PanelPlace::fill(interface, QStringLiteral("wordCounterView"), *m_wordCounterViewController);
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

    setCenter(stopButton(), {middle, frameOf(stopButton()).height() * 0.5});

    // The cross of the close button has room around it, which may lie beyond the edges.
    const QSizeF close = frameOf(closeButton()).size();
    if (const auto button = closeButton())
        button->setFrameOrigin({size.width() - close.width() + 2, size.height() - close.height() + 3});
    const double rowsMiddle = frameOf(closeButton()).center().y();
    setCenter(titleForFileBeingWatchedLabel(), {middle, rowsMiddle - 1});

    const double titlesY = frameOf(titleForFileBeingWatchedLabel()).y();
    if (const auto line = horizontalLine()) {
        const double height = line->frame().height();
        line->setFrame({0, titlesY - 2 * height + 1, size.width(), height});
    }
    setCenter(activityIndicator(), {frameOf(activityIndicator()).center().x(), rowsMiddle - 2});

    const QRectF stop = frameOf(stopButton());
    const std::shared_ptr<View> &statistics = m_wordCounterViewController->view();
    statistics->setFrameSize({size.width(), statistics->frame().height()});
    statistics->setFrameOrigin({0, stop.y() + stop.height() - 1}); // over the stop button's topmost point

    const std::vector<std::shared_ptr<View>> subviews = view()->subviews();
    for (const std::shared_ptr<View> &subview : subviews) {
        const QPointF origin = subview->frame().topLeft();
        subview->setFrameOrigin({std::floor(origin.x()), std::floor(origin.y())});
    }
}

double WatchTextFileViewController::fittingWidth()
{
    // Of several labels that are too wide the last one decides, not the widest; that is deliberate.
    const double present = view()->frame().width();
    double width = present;
    for (const std::shared_ptr<Label> &label : m_wordCounterViewController->allTextfieldsForLayout()) {
        if (label->frame().width() >= present && !label->isHidden())
            width = label->frame().width() + roomBesideWidestLabel;
    }
    return width;
}

void WatchTextFileViewController::wordCounterViewControllerDidRelayoutLabels()
{
    m_wordCounterViewController->adjustViewHeightToFitVisibleLabels();
    const double height = frameOf(stopButton()).height()
        + m_wordCounterViewController->view()->frame().height() + frameOf(closeButton()).height();
    const QSizeF size(fittingWidth(), height);
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
        setCenter(label, {middle, label->frame().center().y()});
}

void WatchTextFileViewController::setTitle(const std::optional<QString> &title)
{
    const QString text = title.value_or(QString());
    ViewController::setTitle(text);
    if (const auto label = titleForFileBeingWatchedLabel()) {
        label->setStringValue(text);
        label->setToolTip(text); // a long name does not fit
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
