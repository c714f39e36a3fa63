// SPDX-License-Identifier: MIT
// A program with one window, for tests that need another scale or a process of its own. It reads its window
// from the interface file of its first argument, answers each line of input with a line of output, and exits
// at the end of its input.
#include "platform/views/Controls.h"
#include "platform/views/InterfaceFile.h"
#include "platform/views/widgets/WindowWidget.h"

#include <QApplication>
#include <QFile>
#include <QWindow>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

QByteArray answer(const std::string &question, const Window &window, const WindowWidget &widget)
{
    if (question == "scale")
        return QByteArray::number(window.backingScaleFactor());
    if (question == "window")
        return QByteArray::number(widget.windowHandle()->winId());
    const auto label = std::dynamic_pointer_cast<Label>(window.contentView()->subviews().front());
    label->sizeToFit();
    return QByteArray::number(label->frame().width()) + ' ' + QByteArray::number(label->frame().height());
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QApplication application(argumentCount, arguments);
    const std::shared_ptr<View> root = InterfaceFile::load(QFile::decodeName(arguments[1])).rootView();
    const auto window = std::make_shared<Window>(QRectF({20, 30}, root->frame().size()));
    window->setContentView(root);
    window->setLevel(WindowLevel::Floating);
    const WindowWidget widget(window);
    window->orderFront();
    while (!widget.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    for (std::string question; std::getline(std::cin, question);) {
        QCoreApplication::processEvents();
        std::cout << answer(question, *window, widget).toStdString() << '\n' << std::flush;
    }
    return 0;
}
