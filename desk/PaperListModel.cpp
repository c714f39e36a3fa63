// SPDX-License-Identifier: MIT
#include "desk/PaperListModel.h"

#include "desk/LengthUnit.h"

#include <algorithm>

void PaperListModel::setPapers(const std::vector<Paper> &papers, const std::optional<QString> &chosen)
{
    beginResetModel();
    m_rows.clear();
    for (const Paper &paper : papers) {
        // The first of two papers with one name is the one that is found by it.
        if (paper.ppdName && rowOf(*paper.ppdName) < 0)
            m_rows.push_back({*paper.ppdName, QBYPaper(paper)});
    }
    if (chosen && rowOf(*chosen) < 0)
        m_rows.insert(m_rows.begin(), {*chosen, std::nullopt});
    endResetModel();
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
