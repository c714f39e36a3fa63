// SPDX-License-Identifier: MIT
#include "desk/documents/ProgressBarDelegate.h"

#include "desk/documents/DocumentTable.h"

#include <QPainter>

void ProgressBarDelegate::paint(
    QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QVariant percent = index.data(DocumentTable::percentRole);
    if (!percent.isValid())
        return;
    constexpr int barHeight = 3; // pixels
    constexpr int margin = 3;
    QRect bar = option.rect.adjusted(margin, 0, -margin, 0);
    bar.setTop(bar.bottom() - barHeight);
    QRect done = bar;
    done.setWidth(bar.width() * percent.toInt() / 100);
    if (option.direction == Qt::RightToLeft)
        done.moveRight(bar.right());
    const bool isSelected = (option.state & QStyle::State_Selected) != 0;
    painter->fillRect(bar, option.palette.color(QPalette::Mid));
    painter->fillRect(
        done, option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight));
}
