// SPDX-License-Identifier: MIT
// WatchOnScreen is the fixture of tests that watch files like the user: by the command, with the real
// programs and real windows.
// Thread: main.
#pragma once

#include "tests/front_end/ProviderTest.h"
#include "tests/presentation/StatsPanel.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QWidget>

/// The window of another application, which takes the focus when clicked.
class OtherWindow {
public:
    OtherWindow()
    {
        m_window.setWindowTitle(QStringLiteral("Document"));
        m_window.setStyleSheet(QStringLiteral("background: #3060a0"));
        m_window.setGeometry(20, 20, 300, 200);
        m_window.show();
        EXPECT_TRUE(waitUntil([this] { return m_window.isActiveWindow(); }));
    }
    /// Takes the focus.
    void click() const
    {
        TestDisplay::xdotool({QStringLiteral("mousemove"), QStringLiteral("100"), QStringLiteral("100"),
            QStringLiteral("click"), QStringLiteral("1")});
        EXPECT_TRUE(waitUntil([this] { return m_window.isActiveWindow(); }));
    }

private:
    QWidget m_window;
};

class WatchOnScreen : public ProviderTest {
protected:
    WatchOnScreen() { preferOnly(everyStatistic); }

    static ChildProcess::Outcome watch(const QByteArrayList &files)
    {
        return ChildProcess(productProgram(QStringLiteral("quillbay"))).run(QByteArrayList{"watch"} + files);
    }
    /// The identifiers of the windows of files with that name; the program's name follows in their titles.
    static QStringList windowsOf(const QString &fileName)
    {
        QProcess xdotool; // fails if it finds none
        xdotool.start(QStringLiteral("xdotool"),
            {QStringLiteral("search"), QStringLiteral("--onlyvisible"), QStringLiteral("--name"),
                u'^' + QRegularExpression::escape(fileName)});
        EXPECT_TRUE(xdotool.waitForFinished());
        QStringList identifiers;
        for (const QByteArray &line : xdotool.readAllStandardOutput().split('\n')) {
            if (const qulonglong number = line.toULongLong())
                identifiers.append(QStringLiteral("0x%1").arg(number, 0, 16));
        }
        return identifiers;
    }
    static QStringList waitForWindowsOf(qsizetype number, const QString &fileName)
    {
        QStringList found;
        EXPECT_TRUE(waitUntil([&] {
            found = windowsOf(fileName);
            return found.size() == number;
        })) << fileName.toStdString()
            << ": " << found.join(u' ').toStdString();
        return found;
    }
    /// The window of the file, once it shows that many words and has the focus.
    static QString open(const QString &path, int words)
    {
        const ChildProcess::Outcome outcome = watch({QFile::encodeName(path)});
        EXPECT_EQ(outcome.exitStatus, 0) << outcome.errors.toStdString();
        const QString window = waitForWindowsOf(1, QFileInfo(path).fileName()).value(0);
        EXPECT_TRUE(waitUntil([&] { return activeWindow() == window; }));
        EXPECT_TRUE(shows(words));
        return window;
    }
    /// Waits until the window with the focus shows that many words.
    static bool shows(int words)
    {
        const QRegularExpression line(QStringLiteral("-Word(s| Count): %1\\b").arg(words));
        QGuiApplication::clipboard()->clear();
        const bool found = waitUntil([&] {
            // Waits for the copy of the last key press first.
            if (QGuiApplication::clipboard()->text().contains(line))
                return true;
            press("ctrl+c");
            return false;
        });
        if (!found) {
            saveScreenshot(QStringLiteral("watch-without-count"));
            ADD_FAILURE() << "copied: " << QGuiApplication::clipboard()->text().toStdString();
        }
        return found;
    }
    static void clickStop(const QString &window)
    {
        const QRect rect = rectOf(window);
        click(window, rect.width() / 2, rect.height() - 15);
    }

    const QString m_novel = writeFile(QStringLiteral("novel.txt"), "One two three.\n");
};
