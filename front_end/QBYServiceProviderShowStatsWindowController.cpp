// SPDX-License-Identifier: MIT
#include "front_end/QBYServiceProviderShowStatsWindowController.h"

#include "common_views/QBYServiceProviderMainWindow.h"
#include "common_views/ViewExtension.h"
#include "common_views/WindowExtension.h"
#include "common_views/WindowPlacement.h"
#include "platform/views/InterfaceFile.h"
#include "presentation/PanelHost.h"

#include <QScopedValueRollback>

namespace {

constexpr int fadeTime = 250; // milliseconds

const QString productName = QStringLiteral("Quillbay");

} // namespace

QString QBYServiceProviderShowStatsWindowController::windowInterfaceFile()
{
    return QStringLiteral(":/interface_files/QBYServiceProviderShowStatsWindowController.ui");
}

QBYServiceProviderShowStatsWindowController::QBYServiceProviderShowStatsWindowController(
    AttributedString attributedStringToCount, Desktop &desktop, Clock &clock)
    : m_attributedStringToCount(std::move(attributedStringToCount))
    , m_hasText(true)
    , m_desktop(desktop)
    , m_clock(clock)
{
}

QBYServiceProviderShowStatsWindowController::QBYServiceProviderShowStatsWindowController(
    Desktop &desktop, Clock &clock)
    : m_hasText(false)
    , m_desktop(desktop)
    , m_clock(clock)
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
    PanelHost::fillPlace(file, QStringLiteral("wordCounterView"), *m_wordCounterViewController);
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
    putWindowOnScreen();
    PanelHost::useShortStyle(*m_wordCounterViewController);
    if (const auto indicator = activityIndicator())
        indicator->startAnimation();
    m_wordCounterViewController->view()->setAlphaValue(0);
    if (m_hasText)
        count();
}

void QBYServiceProviderShowStatsWindowController::setAttributedStringToCount(AttributedString text)
{
    m_attributedStringToCount = std::move(text);
    m_hasText = true;
    if (window())
        count();
}

void QBYServiceProviderShowStatsWindowController::count()
{
    m_wordCounterViewController->asyncUpdateStatsWithAttributedString(
        m_attributedStringToCount, [weakSelf = weak_from_this()] {
            if (const auto self = weakSelf.lock())
                self->showStatistics();
        });
}

void QBYServiceProviderShowStatsWindowController::putWindowOnScreen()
{
    window()->setTitle(m_documentName.isEmpty() ? productName : m_documentName);
    PanelHost::setUpWindow(
        *window(), *m_wordCounterViewController, *this, [this] { closeButtonAction(nullptr); });
    if (const auto indicator = activityIndicator()) {
        m_waitNotice = std::make_unique<WaitNotice>(indicator, *window(), m_clock,
            [this] { return m_hasText ? WaitNotice::Subject::CountingService : WaitNotice::Subject::Text; });
    }
    m_windowOnScreen = m_desktop.putOnScreen(window());
}

void QBYServiceProviderShowStatsWindowController::showStatistics()
{
    if (const auto indicator = activityIndicator())
        indicator->stopAnimation();
    m_wordCounterViewController->view()->fadeTo(1, fadeTime);
    window()->announce();
}

void QBYServiceProviderShowStatsWindowController::showWindow(QObject * /*sender*/)
{
    loadWindow();
    const std::optional<QRectF> area = m_desktop.visibleFrameAtPointer();
    window()->setPlacedByDesktop(!area);
    if (area) {
        const QSizeF size = window()->frame().size();
        const QPointF topRight = area->bottomRight(); // Qt's name in its own coordinates
        const QPointF pointer = m_desktop.pointerLocation().value_or(topRight);
        window()->setFrame({originBesidePointer(size, pointer, *area), size}, false, false);
    }
    window()->orderFront();
}

void QBYServiceProviderShowStatsWindowController::closeButtonAction(QObject * /*sender*/)
{
    const auto self = shared_from_this(); // the delegate drops its reference
    window()->close();
    m_reading.reset();
    m_wordCounterViewController->stopAsyncOperation(); // frees the counting service for other windows
    if (auto *const receiver = delegate())
        receiver->serviceProviderShowStatsWindowControllerDidClose(*this);
}

void QBYServiceProviderShowStatsWindowController::wordCounterViewControllerDidRelayoutLabels()
{
    if (m_isWideningPanel)
        return;
    m_wordCounterViewController->adjustViewHeightToFitVisibleLabels();
    const double width = PanelHost::fittingWidth(*m_wordCounterViewController, window()->frame().width());
    const double height = m_wordCounterViewController->view()->frame().height() + titleRowHeight;
    QBYExtension::setFrameSize(*window(), {width, height}, true);
}

// Every step reads the present frames: moving or resizing the panel places its labels again, which may resize
// the window between two steps.
void QBYServiceProviderShowStatsWindowController::windowContentViewFrameDidChange()
{
    const auto windowSize = [this] { return window()->frame().size(); };
    const auto titleX = [this] {
        const QRectF indicator = Outlet::frame(activityIndicator());
        return indicator.x() + indicator.width();
    };
    widenPanel();
    Outlet::setFrameOrigin(panelView(), {0, 0});
    Outlet::setFrameOrigin(
        activityIndicator(), {5, windowSize().height() - Outlet::frame(activityIndicator()).height() - 4});
    Outlet::setFrameOrigin(closeButton(),
        {Outlet::frame(window()->contentView()).width() - Outlet::frame(closeButton()).width(),
            Outlet::frame(panelView()).height() + 2});
    const double titleHeight = Outlet::frame(titleLabel()).height();
    Outlet::setFrame(titleLabel(),
        {titleX(), windowSize().height() - titleHeight - 3, Outlet::frame(closeButton()).x() - titleX(),
            titleHeight});
    const QRectF panel = Outlet::frame(panelView());
    Outlet::setFrame(lineSeparator(),
        {0, panel.y() + panel.height() + 1, windowSize().width(), Outlet::frame(lineSeparator()).height()});
}

/// Makes the panel as wide as the window, so that its labels are centred. The window has the right size
/// already: the relayout that this causes must not fit it again.
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
