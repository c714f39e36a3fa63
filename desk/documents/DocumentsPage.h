// SPDX-License-Identifier: MIT
// DocumentsPage is the page with all documents that the user keeps an eye on: their counts, what today
// brought, and how far their goals are.
// Thread: main.  Owner: the stack of pages, as a Qt child.
#pragma once

#include "desk/documents/DocumentTable.h"
#include "platform/views/ApplicationActivity.h"

#include <QSortFilterProxyModel>
#include <QWidget>

#include <functional>
#include <memory>

namespace Ui {
class DocumentsPage;
}

class DocumentsPage : public QWidget {
    Q_OBJECT

public:
    /// watch: opens the watch windows of files; their paths.
    explicit DocumentsPage(std::function<void(const QByteArrayList &paths)> watch);
    ~DocumentsPage() override;

    /// The rules of the counts have changed.
    void followRules();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void makeActions();
    void chooseFiles();
    void chooseFolder();
    void addFolder(const QString &folder, const QString &pattern);
    void editGoal();
    void copy();
    void findFile();
    void remove();
    void shift(int step);
    void showState();
    void fitColumns();
    /// Of the list, in the order of the table.
    [[nodiscard]] std::vector<int> selectedRows() const;
    [[nodiscard]] std::vector<int> shownRows() const;
    void select(int row);

    const std::function<void(const QByteArrayList &paths)> m_watch;
    // Always active: many documents are not polled. Their events suffice, and file systems without events are
    // polled below.
    ApplicationActivity m_activity{true};
    DocumentList m_list;
    DocumentTable m_table;
    QSortFilterProxyModel m_sorted;
    QString m_problem; // of the store
    QTimer m_refresh; // after changes of rows, of which many come at once
    std::unique_ptr<Ui::DocumentsPage> m_ui;
};
