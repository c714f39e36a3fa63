// SPDX-License-Identifier: MIT
#include "platform/views/widgets/ViewWidgets.h"

#include "platform/views/Controls.h"
#include "platform/views/widgets/PaintedWidget.h"
#include "platform/views/widgets/PlainText.h"
#include "platform/views/widgets/SpinnerWidget.h"
#include "platform/views/widgets/SymbolIcon.h"

#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QPushButton>

namespace {

/// Calls update now and after every one of the signals, as long as the widget lives.
template <typename ViewClass, typename Update, typename... Signals>
void follow(ViewClass &view, QWidget *widget, const Update &update, Signals... signalsOfView)
{
    (QObject::connect(&view, signalsOfView, widget, update), ...);
    update();
}

Qt::Alignment qtAlignment(LabelAlignment alignment)
{
    switch (alignment) {
    case LabelAlignment::Left:
        break;
    case LabelAlignment::Center:
        return Qt::AlignHCenter | Qt::AlignVCenter;
    case LabelAlignment::Right:
        return Qt::AlignRight | Qt::AlignVCenter;
    }
    return Qt::AlignLeft | Qt::AlignVCenter;
}

QWidget *makeLabel(Label &view, QWidget *parent)
{
    auto *const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    label->setIndent(0);
    const auto update = [label, &view] {
        label->setText(QString(view.stringValue()).replace(u'\n', u' ')); // one line
        label->setAlignment(qtAlignment(view.alignment()) | Qt::AlignAbsolute);
    };
    follow(view, label, update, &Label::stringValueDidChange, &Label::alignmentDidChange);
    return label;
}

QIcon iconNamed(const QString &name)
{
    if (name.isEmpty())
        return {};
    const QIcon symbol = SymbolIcon::named(name);
    return symbol.isNull() ? QIcon::fromTheme(name) : symbol;
}

void showFace(QPushButton &button, const Button &view)
{
    const QIcon icon = iconNamed(view.iconName());
    // Where the theme has no such icon, words must do.
    QString text = view.title();
    if (text.isEmpty() && icon.isNull())
        text = view.accessibleName();
    button.setIcon(icon);
    button.setText(text.replace(u'&', QStringLiteral("&&")));
    button.setFlat(view.title().isEmpty());
}

QWidget *makeButton(Button &view, QWidget *parent)
{
    auto *const button = new QPushButton(parent);
    const auto update = [button, &view] {
        showFace(*button, view);
        button->setEnabled(view.isEnabled());
    };
    follow(
        view, button, update, &Button::faceDidChange, &View::descriptionDidChange, &Button::enabledDidChange);
    QObject::connect(button, &QPushButton::clicked, &view, &Button::performClick);
    return button;
}

QWidget *makeSpinner(ProgressIndicator &view, QWidget *parent)
{
    auto *const spinner = new SpinnerWidget(parent);
    const auto update = [spinner, &view] { spinner->setTurning(view.isAnimating()); };
    follow(view, spinner, update, &ProgressIndicator::animatingDidChange);
    return spinner;
}

QWidget *makeWidgetOfClass(View &view, QWidget *parent)
{
    if (auto *const label = dynamic_cast<Label *>(&view))
        return makeLabel(*label, parent);
    if (auto *const button = dynamic_cast<Button *>(&view))
        return makeButton(*button, parent);
    if (auto *const indicator = dynamic_cast<ProgressIndicator *>(&view))
        return makeSpinner(*indicator, parent);
    if (auto *const box = dynamic_cast<Box *>(&view))
        return new BoxWidget(*box, parent);
    return new PaintedWidget(view, parent);
}

} // namespace

QWidget *makeViewWidget(View &view, QWidget *parent)
{
    QWidget *const widget = makeWidgetOfClass(view, parent);
    widget->hide();
    widget->setObjectName(view.identifier());
    const auto update = [widget, &view] {
        widget->setAccessibleName(view.accessibleName());
        widget->setToolTip(plainToolTip(view.toolTip()));
        widget->setAccessibleDescription(view.toolTip());
    };
    follow(view, widget, update, &View::descriptionDidChange);
    QObject::connect(&view, &View::displayNeeded, widget, qOverload<>(&QWidget::update));
    return widget;
}
