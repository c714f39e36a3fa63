// SPDX-License-Identifier: MIT
// DeskWindow is the main window: a list of pages, the page that is chosen, and the commands of the menus.
// Thread: main.  Owner: main(), or a test.
#pragma once

#include "desk/PrinterPapers.h"
#include "desk/RulesEditor.h"

#include <QList>
#include <QMainWindow>
#include <QUrl>

#include <memory>

class WhyPage;
namespace Ui {
class DeskWindow;
}

/// Remembers its size, place and page on disk.
class DeskWindow : public QMainWindow {
    Q_OBJECT

public:
    /// speechLaunchPath: of the speech command.
    explicit DeskWindow(const QString &speechLaunchPath);
    ~DeskWindow() override;

    /// A page at the end of the list, which the user opens by its title. The window owns it.
    void addPage(QWidget &page, const QString &title);

    /// Shows the first of the files on the page "Why"; does nothing without a file.
    void openFiles(const QList<QUrl> &files);

    /// A line above the pages about the state of the program; empty for none.
    void setNotice(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeActions();
    void restoreState();
    void fitPageList();

    WhyPage *m_whyPage = nullptr; // in the stack of pages
    PrinterPapers m_papers;
    RulesEditor m_editor;
    std::unique_ptr<Ui::DeskWindow> m_ui;
};
