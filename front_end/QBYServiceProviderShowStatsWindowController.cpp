// SPDX-License-Identifier: MIT
#include "front_end/QBYServiceProviderShowStatsWindowController.h"

#include "common_views/QBYServiceProviderMainWindow.h"
#include "common_views/WindowExtension.h"
#include "front_end/WindowPlacement.h"
#include "platform/views/InterfaceFile.h"
#include "presentation/PanelPlace.h"

#include <QScopedValueRollback>

namespace {

constexpr int fadeTime = 250; // milliseconds

const QString productName = QStringLiteral("Quillbay");

/// A missing control lies at zero and has no size.
QRectF frameOf(const std::shared_ptr<View> &view)
{
    return view ? view->frame() : QRectF();
}

void setOrigin(const std::shared_ptr<View> &view, const QPointF &origin)
{
    if (view)
        view->setFrameOrigin(origin);
}

void setFrame(const std::shared_ptr<View> &view, const QRectF &frame)
{
    if (view)
        view->setFrame(frame);
}

} // namespace

QString QBYServiceProviderShowStatsWindowController::windowInterfaceFile()
{
    return QStringLiteral(":/interface_files/QBYServiceProviderShowStatsWindowController.ui");
}

QBYServiceProviderShowStatsWindowController::QBYServiceProviderShowStatsWindowController(
    AttributedString attributedStringToCount, Desktop &desktop)
    : m_attributedStringToCount(std::move(attributedStringToCount))
    , m_desktop(desktop)
{
}

QBYServiceProviderShowStatsWindowController::~QBYServiceProviderShowStatsWindowController() = default;

void QBYServiceProviderShowStatsWindowController::loadWindow()
{
    if (window())
        return;
    const auto file = InterfaceFile::load(windowInterfaceFile());
    m_activityIndicator = file.outlet<ProgressIndicator>(QStringLiteral("activityIndicator"));
    m_titleLabel = file.outlet<Label>(QStringLiteral("titleLabel"));
    m_closeButton = file.outlet<Button>(QStringLiteral("closeButton"));
    m_lineSeparator = file.outlet<Box>(QStringLiteral("lineSeparator"));

    m_wordCounterViewController = std::make_shared<WordCounterViewController>();
    PanelPlace::fill(file, QStringLiteral("wordCounterView"), *m_wordCounterViewController);
    setWindow(std::make_shared<QBYServiceProviderMainWindow>(file.rootView()->frame()));
    window()->setContentView(file.rootView());
    connect(m_closeButton.lock().get(), &Button::clicked, this, [this] { closeButtonAction(nullptr); });
    windowDidLoad();
}

void QBYServiceProviderShowStatsWindowController::windowDidLoad()
{
    connect(window()->contentView().get(), &View::frameDidChange, this,
        &QBYServiceProviderShowStatsWindowController::windowContentViewFrameDidChange);
    m_wordCounterViewController->setLayoutDelegate(this);
    if (const auto label = titleLabel())
        label->setStringValue(productName);
    window()->setLevel(WindowLevel::Floating);
    window()->setMovableByBackground(true);
    setUpForDesktop();
    m_wordCounterViewController->wordCounter()->setFormattedStringStyle(WordCounterModel::shortStyle);
    if (const auto indicator = activityIndicator())
        indicator->startAnimation();
    m_wordCounterViewController->view()->setAlphaValue(0);
    m_wordCounterViewController->asyncUpdateStatsWithAttributedString(
        m_attributedStringToCount, [weakSelf = weak_from_this()] {
            if (const auto self = weakSelf.lock())
                self->showStatistics();
        });
}

/// What users of this desktop expect of a window besides.
void QBYServiceProviderShowStatsWindowController::setUpForDesktop()
{
    window()->setTitle(productName); // for lists of windows and screen readers
    window()->setClosesOnRequest(false);
    connect(window().get(), &Window::closeRequested, this, [this] { closeButtonAction(nullptr); });
    m_wordCounterViewController->serve(*window());
    m_windowOnScreen = m_desktop.putOnScreen(window());
}

void QBYServiceProviderShowStatsWindowController::showStatistics()
{
    if (const auto indicator = activityIndicator())
        indicator->stopAnimation();
    m_wordCounterViewController->view()->fadeTo(1, fadeTime);
}

void QBYServiceProviderShowStatsWindowController::showWindow(QObject * /*sender*/)
{
    loadWindow();
    const QSizeF size = window()->frame().size();
    const QPointF pointer = m_desktop.pointerLocation();
    const QPointF origin = originBesidePointer(size, pointer, m_desktop.visibleFrameAt(pointer));
    window()->setFrame({origin, size}, false, false);
    window()->orderFront();
}

void QBYServiceProviderShowStatsWindowController::closeButtonAction(QObject * /*sender*/)
{
    const auto self = shared_from_this(); // the delegate lets go of it
    window()->close();
    if (auto *const receiver = delegate())
        receiver->serviceProviderShowStatsWindowControllerDidClose(*this);
}

void QBYServiceProviderShowStatsWindowController::wordCounterViewControllerDidRelayoutLabels()
{
    if (m_isWideningPanel)
        return;
    m_wordCounterViewController->adjustViewHeightToFitVisibleLabels();
    double width = window()->frame().width();
    // The last one decides, not the widest.
    for (const std::shared_ptr<Label> &label : m_wordCounterViewController->allTextfieldsForLayout()) {
        if (label->frame().width() >= window()->frame().width() && !label->isHidden())
            width = label->frame().width() + 10;
    }
    const double height = m_wordCounterViewController->view()->frame().height() + titleRowHeight;
    QBYExtension::setFrameSize(*window(), {width, height}, true);
}

// Moving or resizing the panel has its labels placed again, which may resize the window in between: every
// step reads the frames as the steps before it left them.
void QBYServiceProviderShowStatsWindowController::windowContentViewFrameDidChange()
{
    const auto windowSize = [this] { return window()->frame().size(); };
    const auto titleX = [this] {
        const QRectF indicator = frameOf(activityIndicator());
        return indicator.x() + indicator.width();
    };
    widenPanel();
    setOrigin(panelView(), {0, 0});
    setOrigin(activityIndicator(), {5, windowSize().height() - frameOf(activityIndicator()).height() - 4});
    setOrigin(closeButton(),
        {frameOf(window()->contentView()).width() - frameOf(closeButton()).width(),
            frameOf(panelView()).height() + 2});
    const double titleHeight = frameOf(titleLabel()).height();
    setFrame(titleLabel(),
        {titleX(), windowSize().height() - titleHeight - 3, frameOf(closeButton()).x() - titleX(),
            titleHeight});
    const QRectF panel = frameOf(panelView());
    setFrame(lineSeparator(),
        {0, panel.y() + panel.height() + 1, windowSize().width(), frameOf(lineSeparator()).height()});
}

/// The panel is as wide as the window, so that its labels are in the middle. The window has been fitted to
/// them already.
void QBYServiceProviderShowStatsWindowController::widenPanel()
{
    const QScopedValueRollback guard(m_isWideningPanel, true);
    if (const std::shared_ptr<View> panel = panelView())
        panel->setFrameSize({window()->frame().width(), panel->frame().height()});
}

std::shared_ptr<View> QBYServiceProviderShowStatsWindowController::panelView() const
{
    return m_wordCounterViewController ? m_wordCounterViewController->view() : nullptr;
}
