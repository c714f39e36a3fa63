// SPDX-License-Identifier: MIT
// PaperListModel lists the papers that the user can choose from, as texts with their sizes.
// Thread: main.  Owner: PaperPage.
#pragma once

#include "preferences/QBYPaper.h"

#include <QAbstractListModel>
#include <QLocale>

#include <optional>
#include <vector>

class PaperListModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// papers: those without a name are left out, as nobody can choose them. chosen: the paper of the
    /// preferences; if it is not among the papers, it is listed first, as not available.
    void setPapers(const std::vector<Paper> &papers, const std::optional<QString> &chosen);

    /// The row of the paper with that name; -1 for none.
    [[nodiscard]] int rowOf(const QString &paperName) const;
    [[nodiscard]] const QString &nameAt(int row) const { return m_rows[static_cast<size_t>(row)].name; }
    /// Absent if it is not available.
    [[nodiscard]] const std::optional<QBYPaper> &paperAt(int row) const
    {
        return m_rows[static_cast<size_t>(row)].paper;
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

private:
    struct Row {
        QString name;
        std::optional<QBYPaper> paper;

        bool operator==(const Row &other) const;
    };
    [[nodiscard]] static QString textOf(const Row &row);

    std::vector<Row> m_rows;
};
