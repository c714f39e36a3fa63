// SPDX-License-Identifier: MIT
// editor_in_qt: a native Wayland window with a styled text; prints "focused" when it gets the focus, and
// "lost" when another window does. Any key selects and copies the text.
#include <QApplication>
#include <QKeyEvent>
#include <QTextEdit>
#include <QWindow>

#include <cstdio>

namespace {

class Editor : public QTextEdit {
protected:
    void keyPressEvent(QKeyEvent * /*event*/) override
    {
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_C}) {
            QKeyEvent shortcut(QEvent::KeyPress, key, Qt::ControlModifier);
            QTextEdit::keyPressEvent(&shortcut);
        }
    }
};

} // namespace

int main(int argumentCount, char **arguments)
{
    qputenv("QT_QPA_PLATFORM", "wayland");
    const QApplication application(argumentCount, arguments);
    Editor editor;
    editor.setHtml(QStringLiteral("<p>Four <b>bold</b> words, caf\u00e9"));
    QObject::connect(qApp, &QGuiApplication::focusWindowChanged, qApp, [](const QWindow *window) {
        std::puts(window ? "focused" : "lost");
        std::fflush(stdout);
    });
    editor.show();
    return QApplication::exec();
}
