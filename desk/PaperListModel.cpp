// SPDX-License-Identifier: MIT
#include "desk/PaperListModel.h"

#include "desk/LengthUnit.h"

#include <QSet>

#include <algorithm>
#include <utility>

void PaperListModel::setPapers(const std::vector<Paper> &papers, const std::optional<QString> &chosen)
{
    std::vector<Row> rows;
    QSet<QString> names;
    for (const Paper &paper : papers) {
        // The first of two papers with one name is the one that is found by it.
        if (paper.ppdName && !names.contains(*paper.ppdName)) {
            names.insert(*paper.ppdName);
            rows.push_back({*paper.ppdName, QBYPaper(paper)});
        }
    }
    if (chosen && !names.contains(*chosen))
        rows.insert(rows.begin(), {*chosen, std::nullopt});
    // A reset would disturb a user who has the list open.
    if (rows == m_rows)
        return;
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

bool PaperListModel::Row::operator==(const Row &other) const
{
    return name == other.name && paper.has_value() == other.paper.has_value()
        && (!paper || paper->pmPaper() == other.paper->pmPaper());
}

int PaperListModel::rowOf(const QString &paperName) const
{
    const auto found =
        std::find_if(m_rows.begin(), m_rows.end(), [&](const Row &row) { return row.name == paperName; });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int PaperListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant PaperListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    return textOf(m_rows[static_cast<size_t>(index.row())]);
}

QString PaperListModel::textOf(const Row &row)
{
    if (!row.paper)
        return tr("%1 (not available)").arg(row.name);
    const LengthUnit unit = LengthUnit::ofUser();
    const QSizeF size = row.paper->paperSize();
    return (row.paper->isCustom() ? tr("%1 (%2 × %3, custom)") : tr("%1 (%2 × %3)"))
        .arg(row.name, unit.numberText(size.width()), unit.text(size.height()));
}
