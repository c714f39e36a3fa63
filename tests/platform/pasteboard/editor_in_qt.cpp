// SPDX-License-Identifier: MIT
// editor_in_qt: a native Wayland window with a styled text; prints "focused" when it gets the focus, and
// "lost" when another window does. Ctrl+A selects the text, Ctrl+C copies it.
#include <QApplication>
#include <QTextEdit>
#include <QWindow>

#include <cstdio>

int main(int argumentCount, char **arguments)
{
    qputenv("QT_QPA_PLATFORM", "wayland");
    const QApplication application(argumentCount, arguments);
    QTextEdit editor;
    editor.setHtml(QStringLiteral("<p>Four <b>bold</b> words, caf\u00e9"));
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp, [](const QWindow *window) {
        std::puts(window ? "focused" : "lost");
        std::fflush(stdout);
    });
    editor.show();
    return QApplication::exec();
}
