// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WindowWidget.h"

#include "platform/views/widgets/AccessibleWidgets.h"
#include "platform/views/widgets/LabelText.h"
#include "platform/views/widgets/PixelGeometry.h"
#include "platform/views/widgets/WindowActivation.h"
#include "platform/views/widgets/WindowPlaces.h"
#include "platform/views/widgets/X11.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <chrono>
#include <utility>

namespace {

// For this long after the program has placed a window, the display may still report former places and sizes.
constexpr std::chrono::milliseconds settlingTime{300};
constexpr std::chrono::milliseconds dragPollInterval{50};

constexpr float edgeOpacity = 0.25F;

Qt::WindowFlags makeWindowFlags(const Window &window)
{
    const unsigned style = window.styleMask();
    const bool isFloating = window.level() == WindowLevel::Floating;
    // Not Qt::Tool: window managers leave tool windows out of taskbar and Alt+Tab.
    Qt::WindowFlags flags = isFloating ? Qt::Window | Qt::WindowStaysOnTopHint : Qt::Window;
    flags |= Qt::CustomizeWindowHint;
    flags |=
        style & Window::titled ? Qt::WindowTitleHint | Qt::WindowSystemMenuHint : Qt::FramelessWindowHint;
    if (style & Window::closable)
        flags |= Qt::WindowCloseButtonHint;
    if (style & Window::miniaturizable)
        flags |= Qt::WindowMinimizeButtonHint;
    if (style & Window::resizable)
        flags |= Qt::WindowMaximizeButtonHint;
    if (!window.canBecomeKeyWindow())
        flags |= Qt::WindowDoesNotAcceptFocus;
    return flags;
}

} // namespace

WindowWidget::WindowWidget(std::shared_ptr<Window> window)
    : m_window(std::move(window))
    , m_bindings{*m_window, nullptr}
    , m_copyShortcut(new QShortcut(QKeySequence::Copy, this, this, &WindowWidget::copy))
{
    AccessibleWidgets::install();
    m_settling.setSingleShot(true);
    m_settling.setInterval(settlingTime);
    connect(&m_settling, &QTimer::timeout, this, &WindowWidget::adoptGeometry);
    m_dragPoll.setInterval(dragPollInterval);
    connect(&m_dragPoll, &QTimer::timeout, this, &WindowWidget::applyFrameAfterDrag);
    const auto performClose = [this] { m_window->performClose(); };
    for (const QKeySequence &key : {QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::Key_Escape)})
        connect(new QShortcut(key, this), &QShortcut::activated, m_window.get(), performClose);
    followWindow();
    followScreens();
    applyStyle();
    applyFrame();
    adoptScreen();
    bindContent();
    if (m_window->isVisible())
        bringToFront();
}

WindowWidget::~WindowWidget() = default;

void WindowWidget::followWindow()
{
    const Window *const window = m_window.get();
    connect(window, &Window::frameDidChange, this, &WindowWidget::applyFrame);
    connect(window, &Window::contentViewDidChange, this, &WindowWidget::bindContent);
    connect(window, &Window::styleMaskDidChange, this, &WindowWidget::applyStyle);
    connect(window, &Window::levelDidChange, this, &WindowWidget::applyStyle);
    connect(window, &Window::orderedFront, this, &WindowWidget::bringToFront);
    connect(window, &Window::orderedOut, this, &WindowWidget::hide);
    const auto applyTitle = [this] { setWindowTitle(plainWindowTitle(m_window->title())); };
    connect(window, &Window::titleDidChange, this, applyTitle);
    applyTitle();
    connect(window, &Window::announced, this, [this] {
        QAccessibleEvent event(this, QAccessible::DescriptionChanged);
        QAccessible::updateAccessibility(&event);
    });
    const auto applyCopy = [this] { m_copyShortcut->setEnabled(m_window->canCopy()); };
    connect(window, &Window::copyProviderDidChange, this, applyCopy);
    applyCopy();
}

void WindowWidget::followScreens()
{
    const auto followPrimary = [this](const QScreen *screen) {
        disconnect(m_primaryScreen);
        if (!screen)
            return;
        m_primaryScreen = connect(screen, &QScreen::geometryChanged, this, &WindowWidget::adoptGeometry);
        adoptGeometry();
    };
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, followPrimary);
    followPrimary(QGuiApplication::primaryScreen());
}

void WindowWidget::bindContent()
{
    m_content.reset();
    if (!m_window->contentView())
        return;
    m_content = std::make_unique<ViewBinding>(*m_window->contentView(), *this, m_bindings);
    m_content->layOut({});
    Q_EMIT m_window->textMetricsDidChange();
}

void WindowWidget::applyStyle()
{
    const Qt::WindowFlags flags = makeWindowFlags(*m_window);
    setAttribute(Qt::WA_ShowWithoutActivating, !m_window->canBecomeKeyWindow());
    applySizeLimits();
    if (flags == windowFlags())
        return;
    const QRect place = geometry();
    setWindowFlags(flags); // hides the widget
    setGeometry(place); // otherwise Qt would reserve space for a title bar
    m_settling.start();
    if (m_window->isVisible())
        bringToFront();
}

void WindowWidget::applySizeLimits()
{
    if (m_window->styleMask() & Window::resizable) {
        setMinimumSize(1, 1);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    } else {
        setFixedSize(pixelRectOnScreen(m_window->frame(), primaryScreenRect()).size());
    }
}

void WindowWidget::applyFrame()
{
    if (m_isAdopting)
        return;
    const bool isPlaced = m_window->frame().topLeft() != m_knownOrigin;
    if (!isPlaced && isVisible() && X11::isButtonPressed()) {
        // The window manager may be moving the window. A new size during a drag would move the window back to
        // where the drag began, or move its lower edge.
        m_wasReleased = false;
        m_dragPoll.start();
        return;
    }
    m_dragPoll.stop();
    m_knownOrigin = m_window->frame().topLeft();
    const QRect pixels = pixelRectOnScreen(m_window->frame(), primaryScreenRect());
    if (!isPlaced && isVisible()) {
        const QRect kept =
            WindowPlaces::keptInside(pixels, geometry(), WindowPlaces::workAreaAround(geometry()));
        if (kept != pixels)
            return moveTo(kept.topLeft());
    }
    if (!m_awaitsPlace) {
        m_ownPlaces += {geometry().topLeft(), pixels.topLeft()};
        m_settling.start();
    }
    // Widens the limits first, so that place and size change in one step and the window does not jump.
    setMinimumSize(size().boundedTo(pixels.size()));
    setMaximumSize(size().expandedTo(pixels.size()));
    if (m_awaitsPlace)
        resize(pixels.size());
    else
        setGeometry(pixels);
    applySizeLimits();
}

/// The drag has ended when no button is pressed and the window manager has released the pointer; the last
/// place that it reports has arrived one poll later.
void WindowWidget::applyFrameAfterDrag()
{
    const bool isReleased = !X11::isButtonPressed() && !X11::isPointerGrabbed(static_cast<quint32>(winId()));
    if (!std::exchange(m_wasReleased, isReleased) || !isReleased)
        return;
    m_dragPoll.stop();
    adoptGeometry();
    applyFrame();
}

void WindowWidget::adoptGeometry()
{
    if (!isVisible() || isMinimized() || !windowHandle() || (m_awaitsPlace && m_settling.isActive()))
        return;
    m_awaitsPlace = false;
    // While the display may still report places that the program gave the window, only a different place
    // shows that the user has moved it.
    if (!m_settling.isActive())
        m_ownPlaces.clear();
    else if (m_ownPlaces.contains(windowHandle()->geometry().topLeft()))
        return;
    const QScopedValueRollback guard(m_isAdopting, true);
    // The native window has place and size at once; the widget gets them one after the other.
    QRectF frame = frameOnScreen(windowHandle()->geometry(), primaryScreenRect(), m_window->frame());
    if (!(m_window->styleMask() & Window::resizable))
        frame.setSize(m_window->frame().size());
    m_knownOrigin = frame.topLeft();
    m_window->setFrame(frame, false, false);
}

void WindowWidget::adoptScreen()
{
    m_window->setBackingScaleFactor(devicePixelRatioF());
    auto measurer = std::make_shared<const LabelTextMeasurer>(*this);
    if (m_measurer && m_measurer->measuresLike(*measurer))
        return;
    m_measurer = std::move(measurer);
    m_bindings.measurer = m_measurer;
    if (!m_content)
        return;
    m_content->setTextMeasurer();
    Q_EMIT m_window->textMetricsDidChange();
}

/// Moves the window as the user would: its frame follows.
void WindowWidget::moveTo(const QPoint &corner)
{
    const QRectF &frame = m_window->frame();
    QRect pixels = pixelRectOnScreen(frame, primaryScreenRect());
    pixels.moveTopLeft(corner);
    m_window->setFrame(frameOnScreen(pixels, primaryScreenRect(), frame), false, false);
}

/// Qt asks the window manager for a place as long as nothing has moved the widget.
void WindowWidget::awaitPlace()
{
    setAttribute(Qt::WA_Moved, false);
    m_awaitsPlace = true;
    m_settling.start(); // by then the desktop has placed the window
}

void WindowWidget::bringToFront()
{
    const QRect wanted = pixelRectOnScreen(m_window->frame(), primaryScreenRect());
    if (!m_window->isPlacedByDesktop()) {
        moveTo(WindowPlaces::freePlace(
            wanted, WindowPlaces::placesOfWindows(*this), WindowPlaces::workAreaAround(wanted)));
    } else if (!isVisible()) {
        awaitPlace();
    }
    if (!isVisible())
        setFocus(); // no control has the focus until the user gives it one: a space must not press a button
    if (m_window->canBecomeKeyWindow()) {
        WindowActivation::showAndActivate(*this);
        return;
    }
    show();
    raise();
}

bool WindowWidget::event(QEvent *event)
{
    const bool isRecognized = QWidget::event(event);
    switch (event->type()) {
    case QEvent::Show:
    case QEvent::ScreenChangeInternal:
    case QEvent::ApplicationFontChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        adoptScreen();
        break;
    default:
        break;
    }
    return isRecognized;
}

void WindowWidget::moveEvent(QMoveEvent *event)
{
    QWidget::moveEvent(event);
    adoptGeometry();
}

void WindowWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    adoptGeometry();
}

void WindowWidget::closeEvent(QCloseEvent *event)
{
    event->ignore(); // the window hides the widget if it does close
    m_window->performClose();
}

void WindowWidget::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt.reset();
    if (event->button() == Qt::LeftButton && m_window->isMovableByBackground())
        m_pressedAt = event->globalPosition().toPoint();
}

void WindowWidget::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressedAt || !(event->buttons() & Qt::LeftButton))
        return;
    const QPoint distance = event->globalPosition().toPoint() - *m_pressedAt;
    if (distance.manhattanLength() < QApplication::startDragDistance())
        return;
    m_pressedAt.reset(); // from here on the window manager moves the window
    windowHandle()->startSystemMove();
}

void WindowWidget::mouseReleaseEvent(QMouseEvent * /*event*/)
{
    m_pressedAt.reset();
}

void WindowWidget::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_window->canCopy())
        return;
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // Qt's own text, in the user's language.
    QAction *const action = menu->addAction(QCoreApplication::translate("WindowWidget", "&Copy"));
    action->setShortcut(QKeySequence::Copy);
    connect(action, &QAction::triggered, this, &WindowWidget::copy);
    menu->popup(event->globalPos());
}

void WindowWidget::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!(windowFlags() & Qt::FramelessWindowHint))
        return;
    // A hairline instead of the window manager's frame: the window needs an edge on a similar background.
    QPainter painter(this);
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(edgeOpacity);
    painter.setPen(line);
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

void WindowWidget::copy()
{
    const MimeContent content = m_window->contentToCopy();
    if (content.empty())
        return;
    auto forms = std::make_unique<QMimeData>();
    for (const auto &[type, bytes] : content)
        forms->setData(type, bytes);
    QGuiApplication::clipboard()->setMimeData(forms.release());
}
