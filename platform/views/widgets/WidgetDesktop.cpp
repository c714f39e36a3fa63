// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WidgetDesktop.h"

#include "platform/logging/LogChannel.h"
#include "platform/views/widgets/DocumentChooser.h"
#include "platform/views/widgets/LabelText.h"
#include "platform/views/widgets/PixelGeometry.h"
#include "platform/views/widgets/WindowActivation.h"
#include "platform/views/widgets/WindowPlaces.h"
#include "platform/views/widgets/WindowWidget.h"
#include "platform/views/widgets/X11.h"

#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

class WidgetOnScreen final : public WindowOnScreen {
public:
    explicit WidgetOnScreen(std::shared_ptr<Window> window)
        : m_widget(new WindowWidget(std::move(window)))
    {
    }
    ~WidgetOnScreen() override
    {
        if (!m_widget)
            return;
        m_widget->hide();
        m_widget->deleteLater(); // its own click may be what is being handled
    }

private:
    QPointer<WindowWidget> m_widget; // the application may destroy it first
};

/// Keeps keys from answering a dialog in its first guardedTime. Owned by the dialog.
class AnswerGuard final : public QObject {
public:
    /// clock: outlives the dialog.
    AnswerGuard(QDialog &dialog, const Clock &clock)
        : QObject(&dialog)
        , m_dialog(dialog)
        , m_clock(clock)
        , m_start(clock.now())
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const QEvent::Type type = event->type();
        if (type != QEvent::KeyPress && type != QEvent::KeyRelease && type != QEvent::ShortcutOverride)
            return false;
        const auto *const widget = qobject_cast<const QWidget *>(watched);
        if (!widget || widget->window() != &m_dialog)
            return false;
        // A key that has been held down since before never answers.
        const bool isHeld = type == QEvent::KeyPress && static_cast<const QKeyEvent *>(event)->isAutoRepeat();
        if (!isHeld && m_clock.now() - m_start >= WidgetDesktop::guardedTime)
            return false;
        event->accept(); // an accepted override triggers no shortcut
        return true;
    }

private:
    QDialog &m_dialog;
    const Clock &m_clock;
    const Clock::Time m_start;
};

/// The pixel that contains the point.
QPoint pixelAt(const QPointF &point)
{
    return pixelRectOnScreen({point, QSizeF(1, 1)}, primaryScreenRect()).topLeft();
}

/// In square pixels; 0 inside the rectangle.
double squaredDistance(const QPoint &point, const QRect &rect)
{
    const int right = std::max({rect.left() - point.x(), point.x() - rect.right(), 0});
    const int down = std::max({rect.top() - point.y(), point.y() - rect.bottom(), 0});
    return static_cast<double>(right) * right + static_cast<double>(down) * down;
}

std::unique_ptr<QMessageBox> makeMessageBox(
    QMessageBox::Icon icon, const QString &text, const QString &windowTitle)
{
    auto box = std::make_unique<QMessageBox>(icon, plainWindowTitle(windowTitle), text);
    box->setTextFormat(Qt::PlainText);
    box->setWindowModality(Qt::ApplicationModal);
    // The box is about windows that float; it must not be covered by them.
    box->setWindowFlag(Qt::WindowStaysOnTopHint);
    return box;
}

/// In the middle of the screen with the pointer, where Qt places dialogs, or next to others that wait there.
void placeInCascade(QDialog &dialog)
{
    const QScreen *const atPointer = QGuiApplication::screenAt(QCursor::pos());
    const QRect workArea = (atPointer ? atPointer : QGuiApplication::primaryScreen())->availableGeometry();
    QRect wanted(QPoint(), dialog.sizeHint());
    wanted.moveCenter(workArea.center());
    dialog.move(WindowPlaces::freePlace(wanted, WindowPlaces::placesOfWindows(dialog), workArea));
}

/// QMessageBox::setTextFormat() does not affect the informative text.
void showAsPlainText(const QMessageBox &box)
{
    for (QLabel *const label : box.findChildren<QLabel *>())
        label->setTextFormat(Qt::PlainText);
}

} // namespace

WidgetDesktop::WidgetDesktop(Clock &clock)
    : m_clock(clock)
{
}

WidgetDesktop::~WidgetDesktop()
{
    for (const std::unique_ptr<QDialog> &dialog : m_dialogs)
        dialog->disconnect();
}

std::unique_ptr<WindowOnScreen> WidgetDesktop::putOnScreen(std::shared_ptr<Window> window)
{
    return std::make_unique<WidgetOnScreen>(std::move(window));
}

void WidgetDesktop::setActivationToken(const QByteArray &token)
{
    WindowActivation::setToken(token);
}

std::optional<QPointF> WidgetDesktop::pointerLocation() const
{
    if (!X11::knowsPointer())
        return std::nullopt;
    return frameOnScreen({QCursor::pos(), QSize(1, 1)}, primaryScreenRect(), {}).topLeft();
}

std::optional<QRectF> WidgetDesktop::visibleFrameAtPointer() const
{
    const std::optional<QPointF> pointer = pointerLocation();
    if (!pointer && QGuiApplication::screens().size() > 1)
        return std::nullopt;
    return visibleFrameAt(pointer.value_or(QPointF()));
}

QRectF WidgetDesktop::visibleFrameAt(const QPointF &point) const
{
    const QPoint pixel = pixelAt(point);
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto *const nearest =
        *std::min_element(screens.begin(), screens.end(), [&](auto *one, auto *other) {
            return squaredDistance(pixel, one->geometry()) < squaredDistance(pixel, other->geometry());
        });
    return frameOnScreen(nearest->availableGeometry(), primaryScreenRect(), {});
}

void WidgetDesktop::beep()
{
    QApplication::beep();
}

void WidgetDesktop::runAlert(const Alert &alert, AlertCompletion completion)
{
    std::unique_ptr<QMessageBox> box = makeMessageBox(QMessageBox::Warning, alert.messageText,
        alert.windowTitle.isEmpty() ? QGuiApplication::applicationDisplayName() : alert.windowTitle);
    box->setInformativeText(alert.informativeText);
    showAsPlainText(*box);
    QList<QAbstractButton *> buttons;
    for (const QString &title : alert.buttons) {
        // With the rejecting role, the desktop's style could move the button.
        buttons.append(
            box->addButton(QString(title).replace(u'&', QStringLiteral("&&")), QMessageBox::AcceptRole));
    }
    box->setDefaultButton(static_cast<QPushButton *>(buttons.first()));
    box->setEscapeButton(buttons.last());
    showAlert(std::move(box), [buttons, completion = std::move(completion)](QDialog &dialog, int) {
        const QAbstractButton *const pressed = static_cast<QMessageBox &>(dialog).clickedButton();
        completion(static_cast<int>(std::max<qsizetype>(buttons.indexOf(pressed), 0)));
    });
}

void WidgetDesktop::presentError(const QString &text)
{
    LogChannel::standard().error(u"{}", {publicly(text)});
    if (m_reportedErrors.contains(text))
        return;
    m_reportedErrors.insert(text);
    std::unique_ptr<QMessageBox> box =
        makeMessageBox(QMessageBox::Critical, text, QGuiApplication::applicationDisplayName());
    box->addButton(QMessageBox::Ok);
    showAlert(std::move(box), [](QDialog &, int) {});
}

void WidgetDesktop::beginOpenPanel(const OpenPanel &panel, OpenPanel::Completion completion)
{
    auto chooser = std::make_unique<DocumentChooser>(panel);
    chooser->setWindowFlag(Qt::WindowStaysOnTopHint);
    chooser->setWindowModality(Qt::NonModal);
    QDialog &shown = *chooser;
    addDialog(std::move(chooser), [completion = std::move(completion)](QDialog &dialog, int result) {
        const QList<QUrl> urls = static_cast<DocumentChooser &>(dialog).chosenUrls();
        const bool isChosen = result == QDialog::Accepted && !urls.isEmpty();
        completion(isChosen ? std::optional(urls) : std::nullopt);
    });
    WindowActivation::showAndActivate(shown);
}

void WidgetDesktop::showAlert(std::unique_ptr<QDialog> dialog, Finish finish)
{
    QDialog &shown = *dialog;
    addDialog(std::move(dialog), std::move(finish));
    new AnswerGuard(shown, m_clock); // owned by the dialog
    placeInCascade(shown);
    WindowActivation::showForAttention(shown);
}

void WidgetDesktop::addDialog(std::unique_ptr<QDialog> dialog, Finish finish)
{
    QDialog *const shown = dialog.get();
    m_dialogs.push_back(std::move(dialog));
    QObject::connect(shown, &QDialog::finished, qApp, [this, shown, finish = std::move(finish)](int result) {
        const auto finishCopy = finish; // copied: the connection that holds it may end with the dialog
        finishCopy(*shown, result);
        removeDialog(*shown);
        if (m_dialogs.empty() && m_askingEnded)
            m_askingEnded();
    });
}

void WidgetDesktop::removeDialog(const QDialog &dialog)
{
    const auto place = std::find_if(
        m_dialogs.begin(), m_dialogs.end(), [&](const auto &known) { return known.get() == &dialog; });
    if (place == m_dialogs.end())
        return;
    place->release()->deleteLater(); // it is the sender of the present signal
    m_dialogs.erase(place);
}
