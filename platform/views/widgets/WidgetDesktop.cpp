// SPDX-License-Identifier: MIT
#include "platform/views/widgets/WidgetDesktop.h"

#include "platform/logging/LogChannel.h"
#include "platform/views/widgets/AnswerGuard.h"
#include "platform/views/widgets/DocumentChooser.h"
#include "platform/views/widgets/PixelGeometry.h"
#include "platform/views/widgets/PlainText.h"
#include "platform/views/widgets/WindowActivation.h"
#include "platform/views/widgets/WindowWidget.h"

#include <QApplication>
#include <QCursor>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <limits>

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
        m_widget->deleteLater(); // it may be its own click that is being handled
    }

private:
    QPointer<WindowWidget> m_widget; // ends with the application at the latest
};

/// The pixel that the point lies in; the frame of a single point.
QPoint pixelAt(const QPointF &point)
{
    return pixelRectOnScreen({point, QSizeF(1, 1)}, primaryScreenRect()).topLeft();
}

/// Squared pixels from the point to the rectangle, 0 inside.
double distance(const QPoint &point, const QRect &rect)
{
    const int right = std::max({rect.left() - point.x(), point.x() - rect.right(), 0});
    const int down = std::max({rect.top() - point.y(), point.y() - rect.bottom(), 0});
    return double(right) * right + double(down) * down;
}

std::unique_ptr<QMessageBox> messageBox(
    QMessageBox::Icon icon, const QString &text, const QString &windowTitle)
{
    auto box = std::make_unique<QMessageBox>(icon, plainWindowTitle(windowTitle), text);
    box->setTextFormat(Qt::PlainText);
    box->setWindowModality(Qt::ApplicationModal);
    // The windows that the box speaks of float.
    box->setWindowFlag(Qt::WindowStaysOnTopHint);
    return box;
}

/// QMessageBox::setTextFormat() leaves out the label of the informative text.
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

QPointF WidgetDesktop::pointerLocation() const
{
    return frameOnScreen({QCursor::pos(), QSize(1, 1)}, primaryScreenRect(), {}).topLeft();
}

QRectF WidgetDesktop::visibleFrameAt(const QPointF &point) const
{
    const QPoint pixel = pixelAt(point);
    const QList<QScreen *> screens = QGuiApplication::screens();
    const auto *const nearest =
        *std::min_element(screens.begin(), screens.end(), [&](auto *one, auto *other) {
            return distance(pixel, one->geometry()) < distance(pixel, other->geometry());
        });
    return frameOnScreen(nearest->availableGeometry(), primaryScreenRect(), {});
}

void WidgetDesktop::beep()
{
    QApplication::beep();
}

void WidgetDesktop::runAlert(const Alert &alert, AlertCompletion completion)
{
    std::unique_ptr<QMessageBox> box = messageBox(QMessageBox::Warning, alert.messageText,
        alert.windowTitle.isEmpty() ? QGuiApplication::applicationDisplayName() : alert.windowTitle);
    box->setInformativeText(alert.informativeText);
    showAsPlainText(*box);
    QList<QAbstractButton *> buttons;
    for (const QString &title : alert.buttons) {
        // The rejecting role would let the desktop's style move the button.
        buttons.append(
            box->addButton(QString(title).replace(u'&', QStringLiteral("&&")), QMessageBox::AcceptRole));
    }
    box->setDefaultButton(static_cast<QPushButton *>(buttons.first()));
    box->setEscapeButton(buttons.last());
    showAlert(std::move(box), [buttons, completion = std::move(completion)](QDialog &dialog, int) {
        QAbstractButton *const pressed = static_cast<QMessageBox &>(dialog).clickedButton();
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
        messageBox(QMessageBox::Critical, text, QGuiApplication::applicationDisplayName());
    box->addButton(QMessageBox::Ok);
    showAlert(std::move(box), [](QDialog &, int) {});
}

void WidgetDesktop::beginOpenPanel(const OpenPanel &panel, OpenPanel::Completion completion)
{
    auto chooser = std::make_unique<DocumentChooser>(panel);
    chooser->setWindowFlag(Qt::WindowStaysOnTopHint);
    chooser->setWindowModality(Qt::NonModal);
    QDialog &shown = *chooser;
    keep(std::move(chooser), [completion = std::move(completion)](QDialog &dialog, int result) {
        const QList<QUrl> urls = static_cast<DocumentChooser &>(dialog).chosenUrls();
        const bool isChosen = result == QDialog::Accepted && !urls.isEmpty();
        completion(isChosen ? std::optional(urls) : std::nullopt);
    });
    WindowActivation::showAndActivate(shown);
}

void WidgetDesktop::showAlert(std::unique_ptr<QDialog> dialog, Finish finish)
{
    QDialog &shown = *dialog;
    keep(std::move(dialog), std::move(finish));
    new AnswerGuard(shown, m_clock); // belongs to the dialog
    WindowActivation::showForAttention(shown);
}

void WidgetDesktop::keep(std::unique_ptr<QDialog> dialog, Finish finish)
{
    QDialog *const shown = dialog.get();
    m_dialogs.push_back(std::move(dialog));
    QObject::connect(shown, &QDialog::finished, qApp, [this, shown, finish = std::move(finish)](int result) {
        const auto ending = finish; // the connection that holds it may end with the dialog
        ending(*shown, result);
        forget(*shown);
        if (m_dialogs.empty() && m_askingEnded)
            m_askingEnded();
    });
}

void WidgetDesktop::forget(const QDialog &dialog)
{
    const auto place = std::find_if(
        m_dialogs.begin(), m_dialogs.end(), [&](const auto &known) { return known.get() == &dialog; });
    if (place == m_dialogs.end())
        return;
    place->release()->deleteLater(); // it is telling us this
    m_dialogs.erase(place);
}
