// SPDX-License-Identifier: MIT
// DocumentTable shows a DocumentList as a table: the columns that the user's rules ask for, and their texts.
// Thread: main.  Owner: DocumentsPage.
#pragma once

#include "desk/documents/DocumentList.h"
#include "writing_progress/GoalProgress.h"

#include <QAbstractTableModel>

#include <vector>

class DocumentTable : public QAbstractTableModel {
    Q_OBJECT

public:
    enum class Kind { Name, Folder, Count, Session, Today, Goal, Progress, Saved };
    struct Column {
        Kind kind;
        Statistic statistic = Statistic::Words; ///< of a count
    };
    /// Values by which rows are sorted; texts and numbers.
    static constexpr int sortRole = Qt::UserRole;
    /// Of the progress column: 0 to 100; invalid without a goal.
    static constexpr int percentRole = Qt::UserRole + 1;

    /// list: outlives the table.
    explicit DocumentTable(const DocumentList &list);

    [[nodiscard]] const Column &column(int index) const
    {
        return m_columns.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] int columnOf(Kind kind) const;

    /// The totals of the rows as a sentence.
    [[nodiscard]] QString totalText(const std::vector<int> &rows) const;

    /// The preferences may have changed.
    void chooseColumns();

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QString text(const FollowedDocument &document, const Column &shown) const;
    [[nodiscard]] QVariant sortValue(const FollowedDocument &document, const Column &shown) const;
    [[nodiscard]] QString toolTip(const FollowedDocument &document) const;
    [[nodiscard]] std::optional<GoalProgress> progressOf(const FollowedDocument &document) const;

    const DocumentList &m_list;
    std::vector<Column> m_columns;
};
