// SPDX-License-Identifier: MIT
// A program with one window, for tests that need another scale or a process of its own. It reads its window
// from the interface file of its first argument, prints a line of facts whenever it is asked by a line of
// input, and ends with its input.
#include "platform/views/InterfaceFile.h"
#include "platform/views/Label.h"
#include "platform/views/widgets/WindowWidget.h"

#include <QApplication>
#include <QFile>
#include <QTextStream>
#include <QWindow>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

/// Resident memory of this process in KiB: all of it, and what it shares with no other.
std::pair<long, long> memory()
{
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    long resident = 0;
    long unshared = 0;
    if (!file.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray &line : file.readAll().split('\n')) {
        const long size = line.simplified().split(' ').value(1).toLong();
        if (line.startsWith("Rss:"))
            resident = size;
        if (line.startsWith("Private_"))
            unshared += size;
    }
    return {resident, unshared};
}

QByteArray answer(const std::string &question, const Window &window, const WindowWidget &widget)
{
    const auto label = std::dynamic_pointer_cast<Label>(window.contentView()->subviews().front());
    if (question == "scale")
        return QByteArray::number(window.backingScaleFactor());
    if (question == "window")
        return QByteArray::number(widget.winId());
    if (question == "label") {
        label->sizeToFit();
        return QByteArray::number(label->frame().width()) + ' ' + QByteArray::number(label->frame().height());
    }
    const auto [resident, unshared] = memory();
    return QByteArray::number(qlonglong(resident)) + ' ' + QByteArray::number(qlonglong(unshared));
}

} // namespace

int main(int argumentCount, char **arguments)
{
    const QApplication application(argumentCount, arguments);
    const auto file = InterfaceFile::load(QFile::decodeName(arguments[1]));
    if (!file) {
        std::cerr << messageText(file.error()).toStdString() << '\n';
        return 1;
    }
    const auto window = std::make_shared<Window>(QRectF(20, 30, 0, 0));
    const QSizeF size = file.value().rootView()->frame().size();
    window->setContentView(file.value().rootView());
    window->setFrame({{20, 30}, size}, false, false);
    window->setLevel(WindowLevel::Floating);
    const WindowWidget widget(window);
    window->orderFront();
    while (!widget.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    for (std::string question; std::getline(std::cin, question);) {
        QCoreApplication::processEvents();
        std::cout << answer(question, *window, widget).toStdString() << std::endl;
    }
    return 0;
}
